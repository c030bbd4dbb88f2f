#include "analysis/colourToken.h"

#include "analysis/tagger/LexicalTag.h"
#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace lexiform {
namespace {

/// The controller and the output of a pass that has met no token yet.
struct PassUnderTest {
    WindowUnderTest window;
    AttributedText output;

    ViewController& controller() { return *window.controller; }

    Next give(std::string_view token, std::optional<std::string_view> tag) {
        return colourToken(tag, {0, token.size()}, token, controller(), output);
    }

    std::int64_t wordsCounted() {
        std::int64_t total = 0;
        for (const WordDictionary* dictionary :
             {&controller().verbs, &controller().nouns, &controller().adjectives, &controller().adverbs,
              &controller().pronouns, &controller().determiners, &controller().particles,
              &controller().prepositions, &controller().conjunctions, &controller().names})
            for (const auto& [word, count] : *dictionary)
                total += count;
        return total;
    }
};

struct CountedClass {
    std::string_view tag;
    WordDictionary ViewController::*dictionary;
    Colour colour;
};

const std::initializer_list<CountedClass> countedClasses = {
    {NLTagVerb, &ViewController::verbs, Colour::red},
    {NLTagNoun, &ViewController::nouns, Colour::blue},
    {NLTagAdjective, &ViewController::adjectives, Colour::green},
    {NLTagAdverb, &ViewController::adverbs, Colour::purple},
    {NLTagPronoun, &ViewController::pronouns, Colour::yellow},
    {NLTagDeterminer, &ViewController::determiners, Colour::brown},
    {NLTagParticle, &ViewController::particles, Colour::gray},
    {NLTagPreposition, &ViewController::prepositions, Colour::pink},
    {NLTagConjunction, &ViewController::conjunctions, Colour::orange},
};

TEST(ColourToken, countsEveryLexicalClassLowerCasedInItsDictionaryAndWritesItsColour) {
    for (const CountedClass& expected : countedClasses) {
        PassUnderTest pass;
        EXPECT_EQ(pass.give("Under", expected.tag), Next::proceed);
        EXPECT_EQ(pass.controller().*expected.dictionary, (WordDictionary{{"under", 1}})) << expected.tag;
        EXPECT_EQ(pass.output, AttributedText("Under", expected.colour)) << expected.tag;
        EXPECT_EQ(pass.wordsCounted(), 1) << expected.tag;
    }
}

TEST(ColourToken, countsNamesAsWrittenAndWritesThemInTheTextColour) {
    for (const std::string_view tag : {NLTagPersonalName, NLTagPlaceName, NLTagOrganizationName}) {
        PassUnderTest pass;
        pass.give("Paris", tag);
        EXPECT_EQ(pass.controller().names, (WordDictionary{{"Paris", 1}})) << tag;
        EXPECT_EQ(pass.output, AttributedText("Paris", Colour::text)) << tag;
        EXPECT_EQ(pass.wordsCounted(), 1) << tag;
    }
}

TEST(ColourToken, writesAVerbRedAndCountsItLowerCased) {
    PassUnderTest pass;
    pass.give("Runs", NLTagVerb);
    EXPECT_EQ(pass.controller().verbs, (WordDictionary{{"runs", 1}}));
    EXPECT_EQ(pass.output, AttributedText("Runs", Colour::red));
}

TEST(ColourToken, writesIdiomsGreenAndCountsThemNowhere) {
    PassUnderTest pass;
    pass.give("at large", NLTagIdiom);
    EXPECT_EQ(pass.output, AttributedText("at large", Colour::green));
    EXPECT_EQ(pass.wordsCounted(), 0);
}

TEST(ColourToken, writesNumbersGrayAndCountsThemNowhere) {
    PassUnderTest pass;
    pass.give("1,000", NLTagNumber);
    EXPECT_EQ(pass.output, AttributedText("1,000", Colour::gray));
    EXPECT_EQ(pass.wordsCounted(), 0);
}

TEST(ColourToken, writesClassifiersAndInterjectionsOrangeAndCountsThemNowhere) {
    for (const std::string_view tag : {NLTagClassifier, NLTagInterjection}) {
        PassUnderTest pass;
        pass.give("Oh", tag);
        EXPECT_EQ(pass.output, AttributedText("Oh", Colour::orange)) << tag;
        EXPECT_EQ(pass.wordsCounted(), 0) << tag;
    }
}

TEST(ColourToken, writesASpaceGrayAndCountsItNowhere) {
    PassUnderTest pass;
    pass.give(" ", NLTagOtherWhitespace);
    EXPECT_EQ(pass.output, AttributedText(" ", Colour::gray));
    EXPECT_EQ(pass.wordsCounted(), 0);
}

TEST(ColourToken, writesEveryOtherTagGrayAndCountsItNowhere) {
    for (const std::string_view tag :
         {NLTagOtherWord, NLTagSentenceTerminator, NLTagOpenQuote, NLTagCloseQuote, NLTagOpenParenthesis,
          NLTagCloseParenthesis, NLTagWordJoiner, NLTagDash, NLTagOtherPunctuation, NLTagParagraphBreak,
          std::string_view("noun"), std::string_view("")}) {
        PassUnderTest pass;
        pass.give("x", tag);
        EXPECT_EQ(pass.output, AttributedText("x", Colour::gray)) << tag;
        EXPECT_EQ(pass.wordsCounted(), 0) << tag;
    }
}

TEST(ColourToken, leavesOutATokenWithoutATag) {
    PassUnderTest pass;
    pass.give("The", NLTagDeterminer);
    EXPECT_EQ(pass.give("ghost", std::nullopt), Next::proceed);
    EXPECT_EQ(pass.output.string(), "The");
    EXPECT_EQ(pass.wordsCounted(), 1);
}

TEST(ColourToken, countsAWordOncePerClassInWhichItOccurs) {
    PassUnderTest pass;
    pass.give("walk", NLTagNoun);
    pass.give("walk", NLTagVerb);
    EXPECT_EQ(pass.controller().nouns, (WordDictionary{{"walk", 1}}));
    EXPECT_EQ(pass.controller().verbs, (WordDictionary{{"walk", 1}}));
}

TEST(ColourToken, lowerCasesByTheUnicodeDefaultAndNoLanguagesOwnRule) {
    PassUnderTest pass;
    pass.give("ISPARTA", NLTagNoun);
    pass.give("ÇİN", NLTagNoun);
    EXPECT_EQ(pass.controller().nouns, (WordDictionary{{"isparta", 1}, {"çi\u0307n", 1}}));
}

TEST(ColourToken, takesTheTokenFromItsRangeInTheText) {
    PassUnderTest pass;
    colourToken(NLTagNoun, {4, 3}, "The cat sat", pass.controller(), pass.output);
    EXPECT_EQ(pass.output, AttributedText("cat", Colour::blue));
}

TEST(ColourTokenDeathTest, stopsTheProgramForARangePastTheEndOfTheText) {
    PassUnderTest pass;
    EXPECT_DEATH(colourToken(NLTagNoun, {4, 9}, "The cat", pass.controller(), pass.output), "past the end");
}

} // namespace
} // namespace lexiform
