#include "analysis/ViewController.h"

#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <any>
#include <string>

namespace lexiform {
namespace {

std::shared_ptr<ViewController> freshController() {
    return std::make_shared<ViewController>(scriptedTaggers({}, std::make_shared<TaggerCalls>()));
}

TEST(FreshController, hasTenEmptyWordDictionariesAndNoWordsInTotal) {
    const auto controller = freshController();
    for (const WordDictionary* dictionary :
         {&controller->verbs, &controller->nouns, &controller->adjectives, &controller->adverbs,
          &controller->pronouns, &controller->determiners, &controller->particles, &controller->prepositions,
          &controller->conjunctions, &controller->names})
        EXPECT_TRUE(dictionary->empty());
    EXPECT_EQ(controller->totWordC, 0);
    EXPECT_EQ(controller->inputText, "");
}

TEST(FreshController, hasEveryListEmpty) {
    const auto controller = freshController();
    for (const StringList* list : {&controller->tagWords, &controller->tagScripts, &controller->tagLangs,
                                   &controller->tagTypes, &controller->tagLemmas})
        EXPECT_TRUE(list->empty());
    for (const std::vector<std::string>* index :
         {&controller->indScripts, &controller->indLangs, &controller->indTypes})
        EXPECT_TRUE(index->empty());
    EXPECT_TRUE(controller->taggedText.empty());
}

TEST(FreshController, hasNineClassColoursInTheOrderOfTheKey) {
    using enum Colour;
    EXPECT_EQ(ViewController::stdColours,
              (std::array{gray, red, blue, green, purple, yellow, brown, pink, orange}));
}

TEST(FreshController, hasFiveTitlesForTheTypesPopUp) {
    EXPECT_EQ(ViewController::theMenuItems,
              (std::array<std::string_view, 5>{"Script", "Language", "Types", "Types (std)", "Lemmas"}));
}

TEST(FreshController, hasTheKeyTextOfEightySixCharacters) {
    EXPECT_EQ(ViewController::stdColourKeys.size(), 86U);
    EXPECT_EQ(ViewController::stdColourKeys,
              "particle\n\nverb\n\nnoun\n\nadjective\n\nadverb\n\npronoun\n\ndeterminer\n\npreposition\n\n"
              "conjunction");
}

TEST(FreshController, hasNoPanesOrControls) {
    const auto controller = freshController();
    EXPECT_TRUE(controller->typesPopup.expired());
    EXPECT_TRUE(controller->intextScroller.expired());
    EXPECT_EQ(controller->intextTextbox, nullptr);
    EXPECT_TRUE(controller->outtextScroller.expired());
    EXPECT_EQ(controller->outtextTextbox, nullptr);
    EXPECT_TRUE(controller->concordScroller.expired());
    EXPECT_EQ(controller->concordTextbox, nullptr);
    EXPECT_EQ(controller->colourKeyText, nullptr);
    EXPECT_EQ(controller->progressSpinner, nullptr);
}

TEST(FreshController, hasAnIdleQueueLimitedToFourOperations) {
    EXPECT_EQ(freshController()->processingQueue.maxConcurrentOperationCount(), 4U);
}

TEST(Controller, passesTheRepresentedObjectThrough) {
    const auto controller = freshController();
    EXPECT_FALSE(controller->representedObject.has_value());
    controller->representedObject = std::string("harbour.txt");
    EXPECT_EQ(std::any_cast<std::string>(controller->representedObject), "harbour.txt");
}

TEST(Controller, keepsItsPopUpAndScrollersByWeakReferenceOnly) {
    const auto controller = freshController();
    auto popup = std::make_shared<PlainPopUpButton>();
    auto scroller = std::make_shared<ScrollView>();
    controller->typesPopup = popup;
    controller->intextScroller = controller->outtextScroller = controller->concordScroller = scroller;
    popup.reset();
    scroller.reset();
    EXPECT_TRUE(controller->typesPopup.expired());
    EXPECT_TRUE(controller->intextScroller.expired());
    EXPECT_TRUE(controller->outtextScroller.expired());
    EXPECT_TRUE(controller->concordScroller.expired());
}

TEST(Controller, keepsItsPanesAlive) {
    const auto controller = freshController();
    controller->outtextTextbox = std::make_shared<PlainTextPane>("kept");
    EXPECT_EQ(controller->outtextTextbox->plainText(), "kept");
}

TEST(Controller, doesNothingWhenItsViewIsLoaded) {
    const WindowUnderTest window{"cat", {{"cat", "Noun"}}};
    window.controller->viewDidLoad();
    EXPECT_EQ(window.tagger->made, 0);
    EXPECT_TRUE(window.popup->items.empty());
}

TEST(ClearWordDicts, emptiesTheTenDictionariesAndLeavesTheTotal) {
    const auto controller = freshController();
    const std::array dictionaries = {&controller->verbs,        &controller->nouns,
                                     &controller->adjectives,   &controller->adverbs,
                                     &controller->pronouns,     &controller->determiners,
                                     &controller->particles,    &controller->prepositions,
                                     &controller->conjunctions, &controller->names};
    for (WordDictionary* dictionary : dictionaries)
        countWord(*dictionary, "word");
    controller->totWordC = 12;
    controller->taggedText.push_back({});

    controller->clearWordDicts();

    EXPECT_TRUE(std::all_of(dictionaries.begin(), dictionaries.end(), [](auto* d) { return d->empty(); }));
    EXPECT_EQ(controller->totWordC, 12);
    EXPECT_EQ(controller->taggedText.size(), 1U);
}

TEST(TagComplex, startsAtPositionZeroWithoutWordOrLemma) {
    const tagComplex record;
    EXPECT_EQ(record.word, std::nullopt);
    EXPECT_EQ(record.script, 0);
    EXPECT_EQ(record.lang, 0);
    EXPECT_EQ(record.type, 0);
    EXPECT_EQ(record.lemma, std::nullopt);
}

TEST(TagComplex, isCopiedByValue) {
    tagComplex record{.word = "cats", .script = 0, .lang = 1, .type = 2, .lemma = "cat"};
    const tagComplex copy = record;
    record.word = "dogs";
    EXPECT_EQ(copy.word, "cats");
    EXPECT_NE(copy, record);
}

} // namespace
} // namespace lexiform
