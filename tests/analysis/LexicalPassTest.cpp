#include "analysis/ViewController.h"

#include "tests/support/SpokenDoubles.h"
#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace lexiform {
namespace {

/// The dictionary that a dying program looks into last.
const WordDictionary* counted = nullptr;

const ScriptedTagger::Script catTags = {{"The", "Determiner"}, {"cat", "Noun"}, {"sat", "Verb"}};

void expectTheCatSat(const WindowUnderTest& window) {
    EXPECT_EQ(window.output->plainText(), "The cat sat.");
    EXPECT_EQ(window.controller->determiners, (WordDictionary{{"the", 1}}));
    EXPECT_EQ(window.controller->nouns, (WordDictionary{{"cat", 1}}));
    EXPECT_EQ(window.controller->verbs, (WordDictionary{{"sat", 1}}));
}

TEST(LexicalPass, countsEachWordLowerCasedAndKeepsTheTextAsItIs) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->parseText();
    expectTheCatSat(window);
}

TEST(LexicalPass, coloursEachTokenByItsClass) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->parseText();
    AttributedText expected;
    expected.append("The", Colour::brown);
    expected.append(" ", Colour::gray);
    expected.append("cat", Colour::blue);
    expected.append(" ", Colour::gray);
    expected.append("sat", Colour::red);
    expected.append(".", Colour::gray);
    EXPECT_EQ(window.output->content, expected);
}

TEST(LexicalPass, givesTheSameCountsWhenRunTwice) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->parseText();
    window.controller->parseText();
    expectTheCatSat(window);
}

TEST(LexicalPass, emptiesEverythingButTheKeyForAnEmptyInputPane) {
    const WindowUnderTest window{"", catTags};
    window.controller->nouns = {{"old", 3}};
    window.output->content = {"old", Colour::blue};
    window.controller->parseText();
    EXPECT_TRUE(window.controller->nouns.empty());
    EXPECT_EQ(window.output->content, AttributedText());
    EXPECT_EQ(window.key->value, ViewController::stdColourKeys);
}

TEST(LexicalPass, showsTheKeyOfTheClasses) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->parseText();
    EXPECT_EQ(window.key->value, ViewController::stdColourKeys);
}

TEST(LexicalPass, entersATwoWordNameAsTwoKeysWithTheirCapitals) {
    const WindowUnderTest window{"Ada Penrose", {{"Ada", "PersonalName"}, {"Penrose", "PersonalName"}}};
    window.controller->parseText();
    EXPECT_EQ(window.controller->names, (WordDictionary{{"Ada", 1}, {"Penrose", 1}}));
}

TEST(LexicalPass, leavesOutATokenThatTheTaggerGivesNoTag) {
    const WindowUnderTest window{"The ghost sat.", catTags};
    window.controller->parseText();
    EXPECT_EQ(window.output->plainText(), "The  sat.");
}

TEST(LexicalPass, countsNoWordsInTotalAndResetsAnEarlierTotal) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->totWordC = 99;
    window.controller->parseText();
    EXPECT_EQ(window.controller->totWordC, 0);
}

TEST(LexicalPass, makesOneTaggerForOneSchemeAndEnumeratesTheWholeTextOnceWithoutOptions) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->parseText();
    EXPECT_EQ(window.tagger->made, 1);
    EXPECT_EQ(window.tagger->schemes, std::vector<std::string>{"NameTypeOrLexicalClass"});
    EXPECT_EQ(window.tagger->texts, std::vector<std::string>{"The cat sat."});
    EXPECT_EQ(window.tagger->ranges, (std::vector<TextRange>{{0, 12}}));
    EXPECT_EQ(window.tagger->units, std::vector{NLTokenUnit::word});
    EXPECT_EQ(window.tagger->options, std::vector{NLTaggerOptions()});
}

TEST(LexicalPass, makesANewTaggerEveryTime) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->parseText();
    window.controller->parseText();
    EXPECT_EQ(window.tagger->made, 2);
}

TEST(LexicalPass, handsTheOutputOverInOneReplacement) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->parseText();
    EXPECT_EQ(window.output->replacements, 1);
}

TEST(LexicalPass, leavesTheOtherPanesAndTheMultiSchemeFieldsAlone) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.concordance->content = {"a list", Colour::text};
    window.controller->taggedText.push_back({});
    window.controller->indTypes = {"Noun"};
    window.controller->parseText();
    EXPECT_EQ(window.concordance->plainText(), "a list");
    EXPECT_EQ(window.input->plainText(), "The cat sat.");
    EXPECT_EQ(window.controller->taggedText.size(), 1U);
    EXPECT_EQ(window.controller->indTypes, std::vector<std::string>{"Noun"});
}

TEST(LexicalPass, skipsAnOutputPaneWithoutTextStorageAndStillShowsTheKey) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.output->content = {"before", Colour::text};
    window.output->hasStorage = false;
    window.controller->parseText();
    EXPECT_EQ(window.output->plainText(), "before");
    EXPECT_EQ(window.key->value, ViewController::stdColourKeys);
}

TEST(LexicalPassDeathTest, stopsTheProgramWithoutAnInputPaneBeforeAnyTagging) {
    const auto controller =
        std::make_shared<ViewController>([](std::span<const TagScheme>) -> std::unique_ptr<Tagger> {
            std::fputs("a tagger was made;", stderr);
            return nullptr;
        });
    EXPECT_DEATH(controller->parseText(), "^fatal error: .*not connected");
}

TEST(LexicalPassDeathTest, stopsTheProgramWithoutAnOutputPaneAfterTheWordsAreCounted) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->outtextTextbox = nullptr;
    const auto lastWords = [&] {
        std::signal(SIGABRT, [](int) { std::_Exit(counted->size() == 1 ? 7 : 8); });
        counted = &window.controller->verbs;
        window.controller->parseText();
    };
    EXPECT_EXIT(lastWords(), testing::ExitedWithCode(7), "not connected");
}

TEST(LexicalPassDeathTest, stopsTheProgramWithoutAKeyFieldAfterTheOutputIsShown) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->outtextTextbox = std::make_shared<SpokenPane>();
    window.controller->colourKeyText = nullptr;
    EXPECT_DEATH(window.controller->parseText(), "shown The cat sat\\.;fatal error: .*not connected");
}

TEST(LexicalPassDeathTest, stopsTheProgramWithoutATagger) {
    const auto controller = std::make_shared<ViewController>(
        [](std::span<const TagScheme>) -> std::unique_ptr<Tagger> { return nullptr; });
    controller->intextTextbox = std::make_shared<PlainTextPane>("text");
    EXPECT_DEATH(controller->parseText(), "not connected");
}

TEST(ParseButton, runsThePassThenDropsTheRecordsAndDisablesThePopUp) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->taggedText.push_back({});
    window.popup->enabled = true;
    window.controller->parseButton();
    expectTheCatSat(window);
    EXPECT_TRUE(window.controller->taggedText.empty());
    EXPECT_FALSE(window.popup->enabled);
}

TEST(ParseButtonDeathTest, stopsTheProgramWithoutAPopUpAfterThePass) {
    const WindowUnderTest window{"The cat sat.", catTags};
    window.controller->outtextTextbox = std::make_shared<SpokenPane>();
    window.controller->typesPopup.reset();
    EXPECT_DEATH(window.controller->parseButton(), "shown The cat sat\\.;fatal error: .*not connected");
}

} // namespace
} // namespace lexiform
