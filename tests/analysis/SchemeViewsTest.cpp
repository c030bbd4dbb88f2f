#include "analysis/ViewController.h"

#include "tests/support/SpokenDoubles.h"
#include "tests/support/TableTagger.h"
#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

using Strings = std::vector<std::string>;

/// A window with records and indexes of its own choosing, as a multi-scheme pass may leave them.
struct ViewsUnderTest : WindowUnderTest {
    ViewsUnderTest() : WindowUnderTest("mice море\n") {
        controller->indScripts = {"Latn", "Cyrl"};
        controller->indLangs = {"en", "ru", "[]"};
        controller->indTypes = {"Noun", "Whitespace", "Verb", "ParagraphBreak"};
        controller->taggedText.push_back(
            {.word = "mice", .script = 0, .lang = 0, .type = 0, .lemma = "mouse"});
        controller->taggedText.push_back({.word = " ", .script = 0, .lang = 2, .type = 1, .lemma = " "});
        controller->taggedText.push_back(
            {.word = "море", .script = 1, .lang = 1, .type = 0, .lemma = "море"});
        controller->taggedText.push_back({.word = "\n", .script = 1, .lang = 2, .type = 3, .lemma = " "});
    }

    void choose(int item) {
        popup->selected = item;
        controller->parse2PopupAction();
    }
};

AttributedText text(std::initializer_list<std::pair<std::string_view, Colour>> pieces) {
    AttributedText result;
    for (const auto& [piece, colour] : pieces)
        result.append(piece, colour);
    return result;
}

const AttributedText byType =
    text({{"mice", Colour::gray}, {" ", Colour::red}, {"море", Colour::gray}, {"\n", Colour::green}});

TEST(SchemeViews, colourTheTextByScript) {
    ViewsUnderTest views;
    views.choose(0);
    EXPECT_EQ(views.output->content, text({{"mice ", Colour::gray}, {"море\n", Colour::red}}));
    EXPECT_EQ(views.key->value, "Latn\n\nCyrl" + std::string(14, '\n'));
}

TEST(SchemeViews, colourTheTextByLanguage) {
    ViewsUnderTest views;
    views.choose(1);
    EXPECT_EQ(
        views.output->content,
        text({{"mice", Colour::gray}, {" ", Colour::blue}, {"море", Colour::red}, {"\n", Colour::blue}}));
    EXPECT_EQ(views.key->value, "en\n\nru\n\n[]" + std::string(12, '\n'));
}

TEST(SchemeViews, colourTheTextByType) {
    ViewsUnderTest views;
    views.choose(2);
    EXPECT_EQ(views.output->content, byType);
    EXPECT_EQ(views.key->value, "Noun\n\nWhite\n\nVerb\n\nParag" + std::string(10, '\n'));
}

TEST(SchemeViews, showLemmasColouredByTypeAndOneSpaceForATokenWithoutOne) {
    ViewsUnderTest views;
    views.choose(4);
    EXPECT_EQ(
        views.output->content,
        text({{"mouse", Colour::gray}, {" ", Colour::red}, {"море", Colour::gray}, {" ", Colour::green}}));
    EXPECT_EQ(views.key->value, "Noun\n\nWhite\n\nVerb\n\nParag" + std::string(10, '\n'));
}

TEST(SchemeViews, showWordsByTypeForAPopUpWithoutASelection) {
    ViewsUnderTest views;
    views.choose(-1);
    EXPECT_EQ(views.output->content, byType);
}

TEST(SchemeViews, showTheSameForTheTypesItemAsAtTheEndOfTheMultiSchemePass) {
    ViewsUnderTest views;
    views.controller->showSchemeView(3);
    const AttributedText atTheEnd = views.output->content;
    const auto keyAtTheEnd = views.key->value;
    views.choose(2);
    EXPECT_EQ(views.output->content, atTheEnd);
    EXPECT_EQ(views.key->value, keyAtTheEnd);
}

TEST(SchemeViews, runTheLexicalPassForTheStandardTypesAndStillKnowTheRecordsAfterwards) {
    const std::vector<TableRow> table = {{"mice", "Latn", "en", "Noun", "mouse"}};
    const WindowUnderTest window{"mice", tableTaggers(table)};
    window.controller->multiParse();
    window.popup->selected = 3;
    window.controller->parse2PopupAction();
    EXPECT_EQ(window.output->content, AttributedText("mice", Colour::blue));
    EXPECT_EQ(window.key->value, ViewController::stdColourKeys);
    EXPECT_TRUE(window.popup->enabled);
    window.popup->selected = 0;
    window.controller->parse2PopupAction();
    EXPECT_EQ(window.output->content, AttributedText("mice", Colour::gray));
}

TEST(SchemeViews, changeNothingWithoutRecords) {
    const WindowUnderTest window{"mice"};
    window.output->content = {"before", Colour::text};
    for (const int item : {-1, 0, 1, 2, 3, 4}) {
        window.popup->selected = item;
        window.controller->parse2PopupAction();
    }
    EXPECT_EQ(window.output->plainText(), "before");
    EXPECT_EQ(window.key->value, std::nullopt);
    EXPECT_TRUE(window.defaults->strings.empty());
}

TEST(SchemeViews, showAnAbsentFieldAsBrackets) {
    const WindowUnderTest window;
    window.controller->indTypes = {"Noun"};
    window.controller->taggedText.push_back({});
    window.controller->showSchemeView(2);
    EXPECT_EQ(window.output->plainText(), "[]");
    window.controller->showSchemeView(4);
    EXPECT_EQ(window.output->plainText(), "[]");
}

TEST(SchemeViews, startAgainAtTheFirstColourForTheTenthType) {
    const WindowUnderTest window;
    window.controller->indTypes = {"T0", "T1", "T2", "T3", "T4", "T5", "T6", "T7", "T8", "T9"};
    window.controller->taggedText.push_back({.word = "a", .type = 0});
    window.controller->taggedText.push_back({.word = "b", .type = 8});
    window.controller->taggedText.push_back({.word = "c", .type = 9});
    window.controller->showSchemeView(2);
    EXPECT_EQ(window.output->content,
              text({{"a", Colour::gray}, {"b", Colour::orange}, {"c", Colour::gray}}));
    EXPECT_EQ(window.key->value, "T0,T9\n\nT1\n\nT2\n\nT3\n\nT4\n\nT5\n\nT6\n\nT7\n\nT8");
    EXPECT_EQ(window.defaults->stringForKey("theKeyStr"),
              "T0, T9\n\nT1\n\nT2\n\nT3\n\nT4\n\nT5\n\nT6\n\nT7\n\nT8");
}

TEST(SchemeViews, leaveAnOutputPaneWithoutTextStorageAndStillWriteTheKey) {
    ViewsUnderTest views;
    views.output->hasStorage = false;
    views.choose(0);
    EXPECT_EQ(views.output->plainText(), "");
    EXPECT_EQ(views.key->value, "Latn\n\nCyrl" + std::string(14, '\n'));
}

TEST(SchemeViews, areHandedOverInOneReplacement) {
    ViewsUnderTest views;
    views.choose(1);
    EXPECT_EQ(views.output->replacements, 1);
}

TEST(SchemeKey, cutsAValueOfTwelveCharactersToFiveAndStoresItWhole) {
    const WindowUnderTest window;
    window.controller->showSchemeKey({"PersonalName", "Latn", "Verbs"});
    EXPECT_EQ(window.key->value, "Perso\n\nLatn\n\nVerbs" + std::string(12, '\n'));
    EXPECT_EQ(window.defaults->stringForKey("theKeyStr"),
              "PersonalName\n\nLatn\n\nVerbs" + std::string(12, '\n'));
}

TEST(SchemeKey, countsCharactersAsAPersonDoes) {
    const WindowUnderTest window;
    const std::string five = "e\u0301👩‍👩‍👧🇩🇪한x"; // five characters, forty bytes
    window.controller->showSchemeKey({five, five + "y"});
    EXPECT_EQ(window.key->value, five + "\n\n" + five + std::string(14, '\n'));
}

TEST(SchemeKey, hasEightSeparatorsForAnEmptyIndex) {
    const WindowUnderTest window;
    window.controller->showSchemeKey({});
    EXPECT_EQ(window.key->value, std::string(16, '\n'));
    EXPECT_EQ(window.defaults->stringForKey("theKeyStr"), std::string(16, '\n'));
}

TEST(SchemeKey, storesTheTitleOfTheWindow) {
    const WindowUnderTest window;
    window.view->ownWindow.ownTitle = "story.txt";
    window.controller->showSchemeKey({"Latn"});
    EXPECT_EQ(window.defaults->stringForKey("windowTitle"), "story.txt");
}

TEST(SchemeViewsDeathTest, stopTheProgramWithoutAPopUp) {
    const ViewsUnderTest views;
    views.controller->typesPopup.reset();
    EXPECT_DEATH(views.controller->parse2PopupAction(), "not connected");
}

TEST(SchemeViewsDeathTest, stopTheProgramWithoutAnOutputPane) {
    const ViewsUnderTest views;
    views.controller->outtextTextbox = nullptr;
    EXPECT_DEATH(views.controller->showSchemeView(0), "not connected");
}

TEST(SchemeViewsDeathTest, stopTheProgramWithoutAKeyFieldAfterTheOutputIsShown) {
    const ViewsUnderTest views;
    views.controller->outtextTextbox = std::make_shared<SpokenPane>();
    views.controller->colourKeyText = nullptr;
    EXPECT_DEATH(views.controller->showSchemeView(4), "^shown mouse море ;fatal error: .*not connected");
}

TEST(SchemeViewsDeathTest, stopTheProgramWithoutAWindowAfterTheKeyIsStored) {
    const auto controller = std::make_shared<ViewController>(
        tableTaggers({}), AnalysisServices{std::make_shared<SpokenDefaults>(), nullptr, nullptr});
    const auto view = std::make_shared<PlainView>();
    view->inWindow = false;
    controller->view = view;
    controller->colourKeyText = std::make_shared<PlainTextField>();
    EXPECT_DEATH(controller->showSchemeKey({}), "^stored theKeyStr;fatal error: .*in no window");
}

} // namespace
} // namespace lexiform
