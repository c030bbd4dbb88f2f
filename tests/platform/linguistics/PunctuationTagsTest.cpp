#include "platform/linguistics/PunctuationTags.h"

#include "analysis/tagger/LexicalTag.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform {
namespace {

/// The tag of `mark` where it first stands in `text`.
std::string_view tagIn(const std::string& text, const std::string& mark) {
    return punctuationTag({text.find(mark), mark.size()}, text);
}

TEST(PunctuationTag, tellsSentenceTerminatorsOfEveryScript) {
    for (const std::string mark : {".", "!", "?", "...", "…", "?!", "。", "！", "؟", "।", "።"})
        EXPECT_EQ(tagIn("x" + mark, mark), NLTagSentenceTerminator) << mark;
}

TEST(PunctuationTag, tellsParenthesesOfEveryKind) {
    for (const std::string mark : {"(", "[", "{", "（"})
        EXPECT_EQ(tagIn("x " + mark + "y", mark), NLTagOpenParenthesis) << mark;
    for (const std::string mark : {")", "]", "}", "）"})
        EXPECT_EQ(tagIn("y" + mark + " x", mark), NLTagCloseParenthesis) << mark;
}

TEST(PunctuationTag, tellsCurlyQuotationMarks) {
    EXPECT_EQ(tagIn("said “yes” to", "“"), NLTagOpenQuote);
    EXPECT_EQ(tagIn("said “yes” to", "”"), NLTagCloseQuote);
    EXPECT_EQ(tagIn("“Yes,” said", "”"), NLTagCloseQuote);
    EXPECT_EQ(tagIn("“Yes.”", "”"), NLTagCloseQuote);
}

TEST(PunctuationTag, tellsStraightQuotationMarksByWhatStandsAroundThem) {
    EXPECT_EQ(tagIn("said \"yes", "\""), NLTagOpenQuote);
    EXPECT_EQ(tagIn("(\"yes", "\""), NLTagOpenQuote);
    EXPECT_EQ(tagIn("yes\" he", "\""), NLTagCloseQuote);
    EXPECT_EQ(tagIn("yes\", he", "\""), NLTagCloseQuote);
    EXPECT_EQ(tagIn("yes!\"", "\""), NLTagCloseQuote);
}

TEST(PunctuationTag, tellsQuotationMarksThatAnotherLanguageUsesTheOtherWayRound) {
    EXPECT_EQ(tagIn("sagte „ja“ und", "„"), NLTagOpenQuote);
    EXPECT_EQ(tagIn("sagte „ja“ und", "“"), NLTagCloseQuote);
    EXPECT_EQ(tagIn("sagte »ja« und", "»"), NLTagOpenQuote);
    EXPECT_EQ(tagIn("sagte »ja« und", "«"), NLTagCloseQuote);
    EXPECT_EQ(tagIn("dit «oui» et", "«"), NLTagOpenQuote);
    EXPECT_EQ(tagIn("言う「はい」と", "「"), NLTagOpenQuote);
    EXPECT_EQ(tagIn("言う「はい」と", "」"), NLTagCloseQuote);
}

TEST(PunctuationTag, tellsAHyphenInsideAWordFromADash) {
    EXPECT_EQ(tagIn("well-known", "-"), NLTagWordJoiner);
    EXPECT_EQ(tagIn("well - known", "-"), NLTagDash);
    EXPECT_EQ(tagIn("sea—and", "—"), NLTagDash);
    EXPECT_EQ(tagIn("sea--and", "--"), NLTagWordJoiner);
    EXPECT_EQ(tagIn("1914–1918", "–"), NLTagDash);
    EXPECT_EQ(tagIn("a_b", "_"), NLTagWordJoiner);
}

TEST(PunctuationTag, callsEverythingElsePunctuation) {
    for (const std::string mark : {",", ";", ":", "·", "、", "*", "/"})
        EXPECT_EQ(tagIn("x" + mark + " y", mark), NLTagOtherPunctuation) << mark;
}

TEST(PunctuationTag, survivesBytesThatAreNoCharacter) {
    EXPECT_EQ(punctuationTag({0, 1}, "\xFF"), NLTagOtherPunctuation);
    EXPECT_EQ(punctuationTag({1, 1}, "\xE2\"\xFF"), NLTagOpenQuote);
}

} // namespace
} // namespace lexiform
