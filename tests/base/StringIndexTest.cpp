#include "base/StringIndex.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lexiform {
namespace {

/// A list with its index.
struct Indexed {
    std::vector<std::string> list{};
    StringIndex index{};

    [[nodiscard]] auto at() const {
        return [this](StringIndex::Place place) -> std::string_view { return list.at(place); };
    }
    StringIndex::Place add(const std::string& string) {
        const StringIndex::Place place = index.findOrAdd(string, at());
        if (place == list.size()) list.push_back(string);
        return place;
    }
};

TEST(StringIndex, numbersStringsInTheOrderInWhichTheyAppear) {
    Indexed indexed;
    EXPECT_EQ(indexed.add("cat"), 0U);
    EXPECT_EQ(indexed.add("dog"), 1U);
    EXPECT_EQ(indexed.add("cat"), 0U);
    EXPECT_EQ(indexed.add(""), 2U);
    EXPECT_EQ(indexed.add(""), 2U);
}

TEST(StringIndex, findsEveryStringOfALongListAndNoOther) {
    Indexed indexed;
    for (int i = 0; i < 10'000; ++i)
        ASSERT_EQ(indexed.add(std::to_string(i)), static_cast<StringIndex::Place>(i));
    for (int i = 0; i < 10'000; ++i)
        ASSERT_EQ(indexed.index.find(std::to_string(i), indexed.at()), static_cast<StringIndex::Place>(i));
    for (int i = 10'000; i < 20'000; ++i)
        ASSERT_FALSE(indexed.index.find(std::to_string(i), indexed.at()));
}

TEST(StringIndex, tellsStringsApartThatDifferInOneByte) {
    Indexed indexed;
    EXPECT_EQ(indexed.add(std::string("a\0", 2)), 0U);
    EXPECT_EQ(indexed.add("a"), 1U);
    EXPECT_EQ(indexed.add("A"), 2U);
}

TEST(StringIndex, holdsNothingAtFirstAndOnceItIsCleared) {
    Indexed indexed;
    EXPECT_FALSE(indexed.index.find("cat", indexed.at()));
    indexed.add("cat");
    indexed.index.clear();
    indexed.list.clear();
    EXPECT_FALSE(indexed.index.find("cat", indexed.at()));
    EXPECT_EQ(indexed.add("dog"), 0U);
}

} // namespace
} // namespace lexiform
