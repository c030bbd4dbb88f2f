#include "linguistics/segmentation/LowerCasedHash.h"
#include "tests/linguistics/segmentation/CutText.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include <unicode/utf.h>
#include <unicode/utf8.h>

namespace lexiform::linguistics {
namespace {

/// A language about which everything has been learnt, wrongly.
class ArbitraryLearning : public testing::Test {
protected:
    ArbitraryLearning()
        : endings_{lowerCasedHash("o"), lowerCasedHash("na"), lowerCasedHash("t")},
          pairs_(PairSet::bytes, 0xFF) {
        std::sort(endings_.begin(), endings_.end());
        learned_.tokenEnds = &tokenEnds_;
        learned_.sentenceEnds = &sentenceEnds_;
        learned_.spaceJoins = &spaceJoins_;
        learned_.characters = &characters_;
        learned_.endings = WordSet(endings_);
        learned_.endingPairs = PairSet(pairs_);
    }

    ArbitraryDecider tokenEnds_{1}, sentenceEnds_{2}, spaceJoins_{3}, characters_{4};
    std::vector<std::uint32_t> endings_;
    std::vector<std::uint8_t> pairs_;
    LearnedSegmentation learned_;
};

// Letters of many scripts, marks, spaces, and bytes that are no text.
std::string hostileText(std::mt19937& random) {
    static constexpr UChar32 firsts[] = {0x20,   0x21,   0x41,   0xC0,    0x300,  0x400,
                                         0x5D0,  0x620,  0x900,  0xE00,   0x1780, 0x2000,
                                         0x3040, 0x4E00, 0xAC00, 0x1F600, 0x1F1E6};
    std::string text;
    for (int i = 0; i < 80; ++i) {
        if (random() % 12 == 0) text += static_cast<char>(random() % 256);
        if (random() % 5 == 0) text += random() % 9 == 0 ? '\n' : ' ';
        const auto value = static_cast<UChar32>(firsts[random() % std::size(firsts)] + random() % 40);
        char bytes[4];
        std::int32_t length = 0;
        U8_APPEND_UNSAFE(bytes, length, value);
        text.append(bytes, static_cast<std::size_t>(length));
    }
    return text;
}

TEST_F(ArbitraryLearning, leavesNoGapInHostileTextOfAnyScriptInAnyLanguage) {
    std::mt19937 random(5);
    for (int i = 0; i < 60; ++i) {
        const std::string text = hostileText(random);
        for (const std::string_view language : trainedLanguages) {
            ASSERT_TRUE(covers(tokensOf(text, language), text)) << language;
            ASSERT_TRUE(covers(tokensOf(text, language, &learned_), text)) << language;
        }
    }
}

TEST_F(ArbitraryLearning, startsASentenceInEveryParagraph) {
    std::mt19937 random(6);
    for (int i = 0; i < 60; ++i) {
        const std::string text = "x" + hostileText(random);
        EXPECT_TRUE(tokensOf(text, "en", &learned_).front().startsSentence);
    }
}

TEST_F(ArbitraryLearning, leavesFileNamesAndIrishNamesWhole) {
    EXPECT_EQ(tokensOf("report.pdf", "en", &learned_).size(), 1U);
    EXPECT_EQ(tokensOf("O'Neill", "en", &learned_).size(), 1U);
}

TEST_F(ArbitraryLearning, neverPartsALetterFromItsMarks) {
    const std::string text = "cafe\xCC\x81-o\xCC\x88rt 5e\xCC\x81";
    for (const Token& token : tokensOf(text, "en", &learned_))
        EXPECT_NE(text[token.range.start], '\xCC');
}

TEST_F(ArbitraryLearning, givesAParagraphTheSameTokensAlone) {
    const std::string first = "The ferry left at 7 a.m. on Monday.\n\n";
    const std::string second = "Nobody can-not say who's \"there\"; it's 5km off.\nA list\n- one\n- two";
    const auto together = tokensOf(first + second, "en", &learned_);
    const auto alone = tokensOf(second, "en", &learned_);
    ASSERT_GT(together.size(), alone.size());
    const std::size_t before = together.size() - alone.size();
    for (std::size_t i = 0; i < alone.size(); ++i) {
        EXPECT_EQ(together[before + i].range.start, alone[i].range.start + first.size());
        EXPECT_EQ(together[before + i].startsSentence, alone[i].startsSentence);
    }
}

TEST_F(ArbitraryLearning, takesTimeInProportionToTheText) {
    for (const std::string& piece :
         {std::string("a-o"), std::string("1,"), std::string("'"), std::string("1 000 "),
          std::string("o na "), std::string("字"), std::string("&#3"), std::string(".\""), std::string("A. "),
          std::string("tonato")}) {
        std::string text;
        while (text.size() < 400000)
            text += piece;
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(covers(tokensOf(text, "fr", &learned_), text)) << piece;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20)) << piece;
    }
}

TEST(WordSet, holdsItsHashesAndNoOthers) {
    std::vector<std::uint32_t> hashes;
    for (std::uint32_t i = 0; i < 3000; ++i)
        hashes.push_back(i * i * 467U);
    std::sort(hashes.begin(), hashes.end());
    const WordSet set(hashes);
    for (const std::uint32_t hash : hashes)
        ASSERT_TRUE(set.holds(hash));
    EXPECT_FALSE(set.holds(1));
    EXPECT_FALSE(set.holds(0xFFFFFFFFU));
    EXPECT_FALSE(WordSet().holds(0));
}

TEST(LowerCasedHash, disregardsCaseInEveryScript) {
    EXPECT_EQ(lowerCasedHash("ÉTÉ"), lowerCasedHash("été"));
    EXPECT_EQ(lowerCasedHash("МИР"), lowerCasedHash("мир"));
    EXPECT_NE(lowerCasedHash("mir"), lowerCasedHash("mit"));
}

} // namespace
} // namespace lexiform::linguistics
