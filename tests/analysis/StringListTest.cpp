#include "analysis/StringList.h"
#include "analysis/TaggedText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <utility>

namespace lexiform {
namespace {

TEST(StringList, givesItsEntriesBackInOrder) {
    StringList list;
    for (const char* word : {"the", "cat", "the", "", "The"})
        list.push_back(word);
    EXPECT_EQ(list.size(), 5U);
    EXPECT_EQ(list, (StringList{"the", "cat", "the", "", "The"}));
    EXPECT_EQ(list[4], "The");
}

TEST(StringList, isTheSameOnlyForTheSameEntriesInTheSameOrder) {
    EXPECT_NE((StringList{"a", "b"}), (StringList{"b", "a"}));
    EXPECT_NE((StringList{"a"}), (StringList{"a", "a"}));
    EXPECT_EQ(StringList(), StringList());
}

TEST(StringList, isEmptyAfterClearingAndCanBeFilledAgain) {
    StringList list{"a", "b"};
    list.clear();
    EXPECT_TRUE(list.empty());
    list.push_back("c");
    EXPECT_EQ(list, StringList{"c"});
}

TEST(StringList, keepsItsEntriesWhenItIsMoved) {
    StringList list{"a", "b"};
    const StringList moved = std::move(list);
    EXPECT_EQ(moved, (StringList{"a", "b"}));
}

TEST(TaggedText, givesItsRecordsBackAsTheyWere) {
    TaggedText records;
    const tagComplex whole{.word = "mice", .script = 1, .lang = 2, .type = 3, .lemma = "mouse"};
    const tagComplex bare{};
    records.push_back(whole);
    records.push_back(bare);
    EXPECT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0], whole);
    EXPECT_EQ(records[1], bare);
    EXPECT_EQ(*records.word(0), "mice");
    EXPECT_EQ(records.lemma(1), nullptr);
}

TEST(TaggedText, tellsAnEmptyStringFromNone) {
    TaggedText records;
    records.push_back({.word = "", .lemma = std::nullopt});
    EXPECT_EQ(records[0].word, "");
    EXPECT_EQ(records[0].lemma, std::nullopt);
}

TEST(TaggedText, isEmptyAfterClearing) {
    TaggedText records;
    records.push_back({});
    records.clear();
    EXPECT_TRUE(records.empty());
}

TEST(TaggedTextDeathTest, stopsTheProgramForAPositionOutOfAllBounds) {
    TaggedText records;
    EXPECT_DEATH(records.push_back({.type = std::numeric_limits<std::int64_t>::max()}), "out of all bounds");
}

} // namespace
} // namespace lexiform
