#include "analysis/WordDictionary.h"

#include <gtest/gtest.h>

#include <limits>

namespace lexiform {
namespace {

TEST(CountWord, storesOneForAWordThatIsAbsent) {
    WordDictionary dictionary;
    countWord(dictionary, "cat");
    EXPECT_EQ(dictionary, (WordDictionary{{"cat", 1}}));
}

TEST(CountWord, storesThreeWhenCalledThreeTimes) {
    WordDictionary dictionary;
    for (int i = 0; i < 3; ++i)
        countWord(dictionary, "cat");
    EXPECT_EQ(dictionary, (WordDictionary{{"cat", 3}}));
}

TEST(CountWord, keepsWordsApartThatDifferInCase) {
    WordDictionary dictionary;
    countWord(dictionary, "The");
    countWord(dictionary, "the");
    EXPECT_EQ(dictionary, (WordDictionary{{"The", 1}, {"the", 1}}));
}

TEST(CountWord, keepsWordsApartThatDifferInTheirScalarsAlone) {
    WordDictionary dictionary;
    countWord(dictionary, "caf\u00E9");
    countWord(dictionary, "cafe\u0301");
    EXPECT_EQ(dictionary.size(), 2U);
}

TEST(WordDictionary, isEqualToOneWithTheSameCountsInAnyOrder) {
    const WordDictionary one{{"cat", 1}, {"dog", 2}};
    EXPECT_EQ(one, (WordDictionary{{"dog", 2}, {"cat", 1}}));
    EXPECT_NE(one, (WordDictionary{{"dog", 2}, {"cat", 2}}));
    EXPECT_NE(one, (WordDictionary{{"dog", 2}, {"cow", 1}}));
    EXPECT_NE(one, (WordDictionary{{"dog", 2}}));
}

TEST(WordDictionary, holdsNoWordOnceItIsCleared) {
    WordDictionary dictionary{{"cat", 7}};
    dictionary.clear();
    EXPECT_TRUE(dictionary.empty());
    EXPECT_EQ(dictionary["cat"], 0);
}

TEST(CountWord, countsUpToTheLargestValue) {
    WordDictionary dictionary{{"cat", std::numeric_limits<std::int64_t>::max() - 1}};
    countWord(dictionary, "cat");
    EXPECT_EQ(dictionary["cat"], std::numeric_limits<std::int64_t>::max());
}

TEST(CountWordDeathTest, stopsTheProgramInsteadOfWrappingAround) {
    WordDictionary dictionary{{"cat", std::numeric_limits<std::int64_t>::max()}};
    EXPECT_DEATH(countWord(dictionary, "cat"), "overflows");
}

} // namespace
} // namespace lexiform
