#include "analysis/ViewController.h"

#include "tests/support/SpokenDoubles.h"
#include "tests/support/TableTagger.h"
#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>

namespace lexiform {
namespace {

using Strings = std::vector<std::string>;

/// The list that a dying program looks into last.
const StringList* kept = nullptr;

const std::vector<TableRow> hiThere = {{"Hi", "Latn", "en", "Interjection", "hi"},
                                       {" ", "Latn", "en", "Whitespace"},
                                       {"there", "Latn", "en", "Adverb", "there"},
                                       {".", "Latn", std::nullopt, "SentenceTerminator", "."}};

WindowUnderTest windowWith(const std::vector<TableRow>& table) {
    return {textOf(table), tableTaggers(table)};
}

Strings sorted(Strings strings) {
    std::sort(strings.begin(), strings.end());
    return strings;
}

TEST(MultiSchemePass, listsTheTextAndTheTagsOfEveryTokenSpacesIncluded) {
    const WindowUnderTest window = windowWith(hiThere);
    window.controller->multiParse();
    EXPECT_EQ(window.controller->tagWords, (StringList{"Hi", " ", "there", "."}));
    EXPECT_EQ(window.controller->tagScripts, (StringList{"Latn", "Latn", "Latn", "Latn"}));
    EXPECT_EQ(window.controller->tagTypes,
              (StringList{"Interjection", "Whitespace", "Adverb", "SentenceTerminator"}));
}

TEST(MultiSchemePass, givesOneScriptOneEntryAndEveryRecordItsPosition) {
    const WindowUnderTest window = windowWith(hiThere);
    window.controller->multiParse();
    EXPECT_EQ(window.controller->indScripts, Strings{"Latn"});
    ASSERT_EQ(window.controller->taggedText.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(window.controller->taggedText[i].script, 0);
}

TEST(MultiSchemePass, givesATokenWithoutALemmaOneSpaceAndOneWithoutALanguageBrackets) {
    const WindowUnderTest window = windowWith(hiThere);
    window.controller->multiParse();
    EXPECT_EQ(window.controller->tagLemmas, (StringList{"hi", " ", "there", "."}));
    EXPECT_EQ(window.controller->tagLangs, (StringList{"en", "en", "en", "[]"}));
    EXPECT_EQ(sorted(window.controller->indLangs), (Strings{"[]", "en"}));
    EXPECT_EQ(window.controller->taggedText[1].lemma, " ");
}

TEST(MultiSchemePass, givesTokensWithoutScriptOrTypeBrackets) {
    const WindowUnderTest window = windowWith({{"x"}});
    window.controller->multiParse();
    EXPECT_EQ(window.controller->tagScripts, StringList{"[]"});
    EXPECT_EQ(window.controller->tagTypes, StringList{"[]"});
}

TEST(MultiSchemePass, givesTokensOfOneTypeOnePositionAndEachTypeOneEntry) {
    const WindowUnderTest window = windowWith(
        {{"cat", "Latn", "en", "Noun"}, {"sat", "Latn", "en", "Verb"}, {"mat", "Latn", "en", "Noun"}});
    window.controller->multiParse();
    const TaggedText& records = window.controller->taggedText;
    EXPECT_EQ(records[0].type, records[2].type);
    EXPECT_NE(records[0].type, records[1].type);
    EXPECT_EQ(sorted(window.controller->indTypes), (Strings{"Noun", "Verb"}));
    EXPECT_EQ(window.controller->indTypes.at(static_cast<std::size_t>(records[1].type)), "Verb");
}

TEST(MultiSchemePass, clearsItsListsAndKeepsTheIndexesForAnEmptyInputPane) {
    const WindowUnderTest window{"", tableTaggers({})};
    ViewController& controller = *window.controller;
    controller.indScripts = controller.indLangs = controller.indTypes = {"kept"};
    for (StringList* list : {&controller.tagWords, &controller.tagScripts, &controller.tagLangs,
                             &controller.tagTypes, &controller.tagLemmas})
        list->push_back("old");
    controller.taggedText.push_back({});
    window.output->content = {"old", Colour::text};
    window.popup->enabled = false;

    controller.multiParse();

    for (const StringList* list : {&controller.tagWords, &controller.tagScripts, &controller.tagLangs,
                                   &controller.tagTypes, &controller.tagLemmas})
        EXPECT_TRUE(list->empty());
    for (const Strings* index : {&controller.indScripts, &controller.indLangs, &controller.indTypes})
        EXPECT_EQ(*index, Strings{"kept"});
    EXPECT_TRUE(controller.taggedText.empty());
    EXPECT_EQ(window.output->plainText(), "");
    EXPECT_TRUE(window.popup->enabled);
}

TEST(MultiSchemePass, givesCanonicalEquivalentsOnePosition) {
    const WindowUnderTest window = windowWith({{"a", "Latn", "en", "Noun"},
                                               {"b", "Latn", "en", "\u00E9"},
                                               {"c", "Latn", "en", "e\u0301"},
                                               {"d", "Latn", "en", "Verb"}});
    window.controller->multiParse();
    const TaggedText& records = window.controller->taggedText;
    EXPECT_EQ(window.controller->indTypes.size(), 3U);
    EXPECT_EQ(window.controller->indTypes.at(static_cast<std::size_t>(records.type(1))), "\u00E9");
    EXPECT_EQ(records.type(2), records.type(1));
    EXPECT_NE(records.type(0), records.type(1));
    EXPECT_NE(records.type(3), records.type(1));
}

TEST(MultiSchemePass, buildsNoRecordsAndKeepsTheIndexesWhenOneSchemeHasOtherTokens) {
    for (const TagScheme scheme :
         {NLTagSchemeScript, NLTagSchemeLanguage, NLTagSchemeNameTypeOrLexicalClass, NLTagSchemeLemma}) {
        const WindowUnderTest window{
            "Hi there.", tableTaggers(hiThere, std::make_shared<TableCalls>(), std::string(scheme))};
        window.controller->indTypes = {"Noun"};
        window.controller->taggedText.push_back({});
        window.popup->enabled = false;
        window.controller->multiParse();
        EXPECT_TRUE(window.controller->taggedText.empty()) << scheme;
        EXPECT_EQ(window.controller->indTypes, Strings{"Noun"}) << scheme;
        EXPECT_TRUE(window.popup->enabled) << scheme;
        EXPECT_EQ(window.key->value, "Noun\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n") << scheme;
    }
}

TEST(MultiSchemePass, givesTheSameListsAndRecordsWhenRunTwiceButForThePositions) {
    const WindowUnderTest window = windowWith(hiThere);
    const auto resolved = [&] {
        std::vector<Strings> records;
        for (std::size_t i = 0; i < window.controller->taggedText.size(); ++i) {
            const tagComplex record = window.controller->taggedText[i];
            records.push_back(
                {*record.word, window.controller->indTypes.at(static_cast<std::size_t>(record.type)),
                 window.controller->indLangs.at(static_cast<std::size_t>(record.lang)), *record.lemma});
        }
        return records;
    };
    window.controller->multiParse();
    const auto first = resolved();
    window.controller->multiParse();
    EXPECT_EQ(resolved(), first);
    EXPECT_EQ(window.controller->tagWords.size(), 4U);
}

TEST(MultiSchemePass, makesOneTaggerForFourSchemesAndRunsFourEnumerationsInOrder) {
    const auto calls = std::make_shared<TableCalls>();
    const WindowUnderTest window{"Hi there.", tableTaggers(hiThere, calls)};
    window.controller->multiParse();
    EXPECT_EQ(calls->made, (std::vector<Strings>{{"Script", "Language", "NameTypeOrLexicalClass", "Lemma"}}));
    EXPECT_EQ(calls->enumerated, (Strings{"Script", "Language", "NameTypeOrLexicalClass", "Lemma"}));
}

TEST(MultiSchemePass, endsWithTheViewByTypeInOneReplacementAndEnablesThePopUp) {
    const WindowUnderTest window = windowWith(hiThere);
    window.popup->selected = 2;
    window.popup->enabled = false;
    window.controller->multiParse();
    EXPECT_EQ(window.output->plainText(), "Hi there.");
    EXPECT_EQ(window.output->replacements, 1);
    EXPECT_TRUE(window.popup->enabled);
    EXPECT_EQ(window.popup->selected, 2);
}

TEST(MultiSchemePass, leavesTheWordDictionariesAndTheConcordanceAlone) {
    const WindowUnderTest window = windowWith(hiThere);
    window.controller->nouns = {{"old", 1}};
    window.concordance->content = {"a list", Colour::text};
    window.controller->multiParse();
    EXPECT_EQ(window.controller->nouns, (WordDictionary{{"old", 1}}));
    EXPECT_EQ(window.concordance->plainText(), "a list");
}

TEST(MultiSchemePass, comesBackAfterTheParseButtonDroppedItsRecords) {
    const WindowUnderTest window = windowWith(hiThere);
    window.controller->multiParse();
    window.controller->parseButton();
    EXPECT_TRUE(window.controller->taggedText.empty());
    EXPECT_FALSE(window.popup->enabled);
    window.controller->multiParse();
    EXPECT_EQ(window.controller->taggedText.size(), 4U);
    EXPECT_TRUE(window.popup->enabled);
}

TEST(MultiSchemePass, showsAnEmptyOutputAndThePreviousKeyWithoutATagger) {
    const WindowUnderTest window{
        "text", [](std::span<const TagScheme>) -> std::unique_ptr<Tagger> { return nullptr; }};
    window.controller->indTypes = {"Verb"};
    window.output->content = {"old", Colour::text};
    window.popup->enabled = false;
    window.controller->multiParse();
    EXPECT_EQ(window.output->plainText(), "");
    EXPECT_EQ(window.key->value, "Verb\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n");
    EXPECT_TRUE(window.popup->enabled);
}

TEST(MultiSchemePassDeathTest, stopsTheProgramWithoutAnInputPaneBeforeAnythingIsChanged) {
    const WindowUnderTest window = windowWith(hiThere);
    window.controller->tagWords = {"old"};
    window.controller->intextTextbox = nullptr;
    const auto lastWords = [&] {
        std::signal(SIGABRT, [](int) { std::_Exit(kept->size() == 1 ? 7 : 8); });
        kept = &window.controller->tagWords;
        window.controller->multiParse();
    };
    EXPECT_EXIT(lastWords(), testing::ExitedWithCode(7), "not connected");
}

TEST(MultiSchemePassDeathTest, stopsTheProgramWithoutAPopUpAfterTheOutputAndTheKeyAreShown) {
    const WindowUnderTest window = windowWith(hiThere);
    window.controller->outtextTextbox = std::make_shared<SpokenPane>();
    window.controller->colourKeyText = std::make_shared<SpokenField>();
    window.controller->typesPopup.reset();
    EXPECT_DEATH(window.controller->multiParse(), "^shown Hi there\\.;key;fatal error: .*not connected");
}

TEST(MultiSchemePassDeathTest, stopsTheProgramForATokenOutsideTheText) {
    const WindowUnderTest window{"Hi", tableTaggers(hiThere)};
    EXPECT_DEATH(window.controller->multiParse(), "past the end");
}

} // namespace
} // namespace lexiform
