#include "analysis/ViewController.h"

#include "tests/support/TableTagger.h"
#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

const std::vector<TableRow> boats = {
    {.word = "Boats", .script = "Latn", .lang = "en", .type = "Noun", .lemma = "boat"},
    {.word = " ", .type = "Whitespace"},
    {.word = "lay", .script = "Latn", .lang = "en", .type = "Verb", .lemma = "lie"}};

const WordDetails boat{.type = "Noun", .lemma = "boat", .language = "en", .script = "Latn"};
const WordDetails lie{.type = "Verb", .lemma = "lie", .language = "en", .script = "Latn"};

struct BoatsUnderTest : WindowUnderTest {
    explicit BoatsUnderTest(const std::shared_ptr<TableCalls>& noted = std::make_shared<TableCalls>())
        : WindowUnderTest(textOf(boats), tableTaggers(boats, noted)), calls(noted) {}

    std::shared_ptr<TableCalls> calls;
};

TEST(ShownWord, isLookedUpAfterTheLexicalPass) {
    BoatsUnderTest window;
    window.controller->parseText();
    EXPECT_EQ(window.controller->shownWordAt(0), boat);
    EXPECT_EQ(window.controller->shownWordAt(4), boat);
    EXPECT_EQ(window.controller->shownWordAt(6), lie);
    EXPECT_EQ(window.controller->shownWordAt(9), std::nullopt);
}

TEST(ShownWord, isLookedUpWithOneTaggerForEachText) {
    BoatsUnderTest window;
    window.controller->parseText();
    const std::size_t before = window.calls->made.size();
    (void)window.controller->shownWordAt(0);
    (void)window.controller->shownWordAt(6);
    EXPECT_EQ(window.calls->made.size(), before + 1);
    EXPECT_EQ(window.calls->made.back().size(), 4U);
}

TEST(ShownWord, comesFromTheRecordsAfterTheMultiSchemePass) {
    BoatsUnderTest window;
    window.controller->multiParse();
    const std::size_t made = window.calls->made.size();
    EXPECT_EQ(window.controller->shownWordAt(4), boat);
    EXPECT_EQ(window.controller->shownWordAt(5), (WordDetails{.type = "Whitespace"}));
    EXPECT_EQ(window.controller->shownWordAt(8), lie);
    EXPECT_EQ(window.controller->shownWordAt(9), std::nullopt);
    EXPECT_EQ(window.calls->made.size(), made);
}

TEST(ShownWord, isFoundByItsLemmaInTheViewOfLemmas) {
    BoatsUnderTest window;
    window.controller->multiParse();
    window.controller->showSchemeView(4); // "boat lie"
    EXPECT_EQ(window.controller->shownWordAt(5), lie);
    EXPECT_EQ(window.controller->shownWordAt(8), std::nullopt);
}

TEST(ShownWord, isOfTheTextThatIsShownWhenTheInputHasChangedSince) {
    BoatsUnderTest window;
    window.controller->parseText();
    window.input->content = AttributedText("", Colour::text);
    EXPECT_EQ(window.controller->shownWordAt(6), lie);
}

TEST(ShownWord, isUnknownWithoutATagger) {
    const WindowUnderTest window("Boats lay", [](auto) { return nullptr; });
    EXPECT_EQ(window.controller->shownWordAt(0), std::nullopt);
}

} // namespace
} // namespace lexiform
