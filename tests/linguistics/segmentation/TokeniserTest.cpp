#include "tests/linguistics/AnalysedText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

using testing::ElementsAre;

std::vector<std::string> wordsOf(const std::string& text) {
    return analysedPlainly(text, "en").words();
}
TokenKind kindOf(const std::string& token) {
    return analysedPlainly(token).tokens().at(0).kind;
}

TEST(Tokeniser, partsContractions) {
    EXPECT_THAT(wordsOf("don't can't it's we'll they've I'm"),
                ElementsAre("do", "n't", "ca", "n't", "it", "'s", "we", "'ll", "they", "'ve", "I", "'m"));
    EXPECT_THAT(wordsOf("cannot gonna Wanna"), ElementsAre("can", "not", "gon", "na", "Wan", "na"));
    EXPECT_THAT(wordsOf("shouldn't've"), ElementsAre("should", "n't", "'ve"));
}

TEST(Tokeniser, partsContractionsWrittenWithoutAnApostrophe) {
    EXPECT_THAT(wordsOf("youll whats alot"), ElementsAre("you", "ll", "what", "s", "a", "lot"));
    EXPECT_THAT(wordsOf("well hell shell"), ElementsAre("well", "hell", "shell"));
}

TEST(Tokeniser, partsItsAndYourWhereTheyTellNoOwner) {
    EXPECT_THAT(wordsOf("Its not far"), ElementsAre("It", "s", "not", "far"));
    EXPECT_THAT(wordsOf("your the best"), ElementsAre("you", "r", "the", "best"));
    EXPECT_THAT(wordsOf("its mast"), ElementsAre("its", "mast"));
    EXPECT_THAT(wordsOf("its in-house crew"), ElementsAre("its", "in", "-", "house", "crew"));
    EXPECT_THAT(wordsOf("ITS NOT"), ElementsAre("ITS", "NOT"));
}

TEST(Tokeniser, partsContractionsWithATypographicApostrophe) {
    EXPECT_THAT(wordsOf("don’t she’s"), ElementsAre("do", "n’t", "she", "’s"));
}

TEST(Tokeniser, leavesApostrophesInsideNames) {
    EXPECT_THAT(wordsOf("O'Hara's o'clock"), ElementsAre("O'Hara", "'s", "o'clock"));
}

TEST(Tokeniser, partsThePossessiveOfPlurals) {
    EXPECT_THAT(wordsOf("the boys' boat"), ElementsAre("the", "boys", "'", "boat"));
}

TEST(Tokeniser, partsHyphenatedWordsButNotPrefixes) {
    EXPECT_THAT(wordsOf("a well-known e-mail from non-members"),
                ElementsAre("a", "well", "-", "known", "e-mail", "from", "non-members"));
}

TEST(Tokeniser, keepsNumbersWhole) {
    EXPECT_THAT(wordsOf("1,250.75 10:30 3/4 2024-05-17 555-0199"),
                ElementsAre("1,250.75", "10:30", "3/4", "2024-05-17", "555-0199"));
}

TEST(Tokeniser, partsSignsAndUnitsFromNumbers) {
    EXPECT_THAT(wordsOf("$5.50 20% 8pm 12km 3rd 1980s"),
                ElementsAre("$", "5.50", "20", "%", "8", "pm", "12", "km", "3rd", "1980s"));
}

TEST(Tokeniser, keepsAddressesWhole) {
    EXPECT_THAT(wordsOf("see https://example.org/a?b=c, (www.example.com) or ann.lee@example.net."),
                ElementsAre("see", "https://example.org/a?b=c", ",", "(", "www.example.com", ")", "or",
                            "ann.lee@example.net", "."));
    EXPECT_THAT(wordsOf("@harlow_boats #flood #1"), ElementsAre("@harlow_boats", "#flood", "#", "1"));
}

TEST(Tokeniser, keepsTheFullStopOfAbbreviations) {
    EXPECT_THAT(wordsOf("Mr. Lee of the U.S. met J. Park, e.g. on Nov. 3."),
                ElementsAre("Mr.", "Lee", "of", "the", "U.S.", "met", "J.", "Park", ",", "e.g.", "on", "Nov.",
                            "3", "."));
}

TEST(Tokeniser, takesRepeatedMarksTogether) {
    EXPECT_THAT(wordsOf("well... no -- what?! yes!!!"),
                ElementsAre("well", "...", "no", "--", "what", "?!", "yes", "!!!"));
}

TEST(Tokeniser, partsQuotesAndBrackets) {
    EXPECT_THAT(wordsOf("(\"Go,\" she said.)"),
                ElementsAre("(", "\"", "Go", ",", "\"", "she", "said", ".", ")"));
    EXPECT_THAT(wordsOf("“Go”"), ElementsAre("“", "Go", "”"));
}

TEST(Tokeniser, findsEmoticonsButNotInsideTimes) {
    EXPECT_THAT(wordsOf("fine :) at 6:30"), ElementsAre("fine", ":)", "at", "6:30"));
}

TEST(Tokeniser, keepsEmojiSequencesAndFlagsWhole) {
    EXPECT_THAT(wordsOf("👩‍🚀👍🏽🇫🇷🇯🇵❤️"),
                ElementsAre("👩‍🚀", "👍🏽", "🇫🇷", "🇯🇵", "❤️"));
}

TEST(Tokeniser, keepsCombiningMarksWithTheirBase) {
    EXPECT_THAT(wordsOf("cafe\xCC\x81s n\xCC\x83o"), ElementsAre("cafe\xCC\x81s", "n\xCC\x83o"));
    EXPECT_THAT(wordsOf("a  \xCC\x81"
                        "b"),
                ElementsAre("a", " \xCC\x81", "b"));
}

TEST(Tokeniser, makesOneTokenOfARunOfSpacesAndOneOfEachLineBreak) {
    const AnalysedText result = analysedPlainly("a \t\xC2\xA0\r\n\n\r b");
    std::vector<std::pair<TokenKind, std::size_t>> gaps;
    for (const Token& token : result.tokens())
        if (isGap(token)) gaps.emplace_back(token.kind, token.range.length);
    using Gap = std::pair<TokenKind, std::size_t>;
    EXPECT_THAT(gaps, ElementsAre(Gap(TokenKind::whitespace, 4), Gap(TokenKind::lineBreak, 2),
                                  Gap(TokenKind::lineBreak, 1), Gap(TokenKind::lineBreak, 1),
                                  Gap(TokenKind::whitespace, 1)));
}

TEST(Tokeniser, tellsKindsByCharacters) {
    EXPECT_EQ(kindOf("tree"), TokenKind::word);
    EXPECT_EQ(kindOf("42"), TokenKind::word);
    EXPECT_EQ(kindOf("дом"), TokenKind::word);
    for (const char* mark : {".", ",", "!", "“", "—", "(", "、", "؟", "¿"})
        EXPECT_EQ(kindOf(mark), TokenKind::punctuation) << mark;
    for (const char* mark : {"$", "€", "+", "=", "😀", "\xFF", "\x01", "%", "→"})
        EXPECT_EQ(kindOf(mark), TokenKind::symbol) << mark;
}

TEST(Tokeniser, findsWordsWhereNoSpacesPartThem) {
    EXPECT_GT(wordsOf("今日は雨です。").size(), 3U);
    EXPECT_GT(wordsOf("แมวนอนอยู่บนเก้าอี้").size(), 2U);
    EXPECT_THAT(wordsOf("東京 2020"), ElementsAre("東京", "2020"));
}

} // namespace
} // namespace lexiform::linguistics
