#include "tests/linguistics/AnalysedText.h"

#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

std::size_t sentencesIn(const std::string& text) {
    std::size_t count = 0;
    for (const Token& token : analysedPlainly(text).tokens())
        count += token.startsSentence;
    return count;
}

TEST(Sentences, endAtFullStopsQuestionsAndExclamations) {
    EXPECT_EQ(analysedPlainly("It rained. Did it? Yes!").cut(), "It|rained|. || Did|it|? || Yes|!");
}

TEST(Sentences, endAfterTheQuoteOrBracketThatCloses) {
    EXPECT_EQ(analysedPlainly("\"Stop!\" Nobody moved. (They could not.) Then it passed.").cut(),
              "\"|Stop|!|\" || Nobody|moved|. || (|They|could|not|.|) || Then|it|passed|.");
}

TEST(Sentences, goOnAfterAQuestionInsideAQuotation) {
    EXPECT_EQ(sentencesIn("\"Really?\" he said."), 1U);
}

TEST(Sentences, goOnAfterAbbreviationsAndInitials) {
    EXPECT_EQ(sentencesIn("Dr. Ito and Mrs. J. B. Moss of St. Albans agreed."), 1U);
}

TEST(Sentences, mayEndAtAnAbbreviation) {
    EXPECT_EQ(sentencesIn("She came at 5 p.m. He did not."), 2U);
}

TEST(Sentences, goOnOverTheLineBreaksOfWrappedProse) {
    EXPECT_EQ(sentencesIn("The road went down through the wood and over the old\n"
                          "bridge, and nobody who walked along it that morning saw\n"
                          "Martha standing there with her dog and her umbrella.\n"),
              1U);
}

TEST(Sentences, endAtTheLineBreaksOfListsAndVerse) {
    EXPECT_EQ(sentencesIn("Bread\nButter\nTwo pounds of apples\nMilk\n"), 4U);
    EXPECT_EQ(sentencesIn("The Third Chapter\nIt began with a letter that nobody had written, and ended so."),
              2U);
}

TEST(Sentences, endAtFullStopsOfOtherScripts) {
    EXPECT_EQ(sentencesIn("雨が降った。風も吹いた。"), 2U);
    EXPECT_EQ(sentencesIn("هل أنت هنا؟ نعم."), 2U);
    EXPECT_EQ(sentencesIn("यह घर है। वह पेड़ है।"), 2U);
}

TEST(Sentences, startAtAWordUnlessThereIsNone) {
    const auto tokens = analysedPlainly("  \n word").tokens();
    EXPECT_FALSE(tokens.front().startsSentence);
    EXPECT_TRUE(tokens.back().startsSentence);
    EXPECT_TRUE(analysedPlainly(" \n").tokens().front().startsSentence);
}

} // namespace
} // namespace lexiform::linguistics
