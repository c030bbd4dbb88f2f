#include "analysis/distinctValues.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace lexiform {
namespace {

using Strings = std::vector<std::string>;

TEST(DistinctValues, holdEachValueOnce) {
    Strings values = distinctValues({"Noun", "Verb", "Noun", "Verb", "Noun"});
    std::sort(values.begin(), values.end());
    EXPECT_EQ(values, (Strings{"Noun", "Verb"}));
}

TEST(DistinctValues, areNoneForAnEmptyList) {
    EXPECT_TRUE(distinctValues({}).empty());
}

TEST(DistinctValues, takeCanonicallyEquivalentStringsForOneAndKeepTheFirst) {
    EXPECT_EQ(distinctValues({"cafe\u0301", "caf\u00E9"}), Strings{"cafe\u0301"});
    EXPECT_EQ(distinctValues({"\u212B", "\u00C5", "A\u030A"}), Strings{"\u212B"});
}

TEST(DistinctValues, comeInAnOrderThatIsSeededAfreshAtEveryCall) {
    const StringList list{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
    std::set<Strings> orders;
    for (int i = 0; i < 20; ++i)
        orders.insert(distinctValues(list));
    EXPECT_GT(orders.size(), 1U); // twenty equal orders of ten values would be a miracle
}

} // namespace
} // namespace lexiform
