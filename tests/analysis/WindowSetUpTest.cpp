#include "tests/support/SpokenDoubles.h"
#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

const std::vector<std::string> titles = {"Script", "Language", "Types", "Types (std)", "Lemmas"};

TEST(WindowSetUp, showsTheColouredOutputAndTheKeyOfATextThatIsThere) {
    const WindowUnderTest window{"cat", {{"cat", "Noun"}}};
    window.controller->viewDidAppear();
    EXPECT_EQ(window.output->content, AttributedText("cat", Colour::blue));
    EXPECT_EQ(window.key->value, ViewController::stdColourKeys);
}

TEST(WindowSetUp, leavesTheOutputPaneAndTheKeyOfAnEmptyDocumentUntouched) {
    const WindowUnderTest window;
    window.controller->viewDidAppear();
    EXPECT_EQ(window.output->plainText(), "");
    EXPECT_EQ(window.output->replacements, 0);
    EXPECT_EQ(window.key->value, std::nullopt);
    EXPECT_EQ(window.tagger->made, 0);
}

TEST(WindowSetUp, fillsThePopUpSelectsTypesAndDisablesIt) {
    const WindowUnderTest window;
    window.controller->viewDidAppear();
    EXPECT_EQ(window.popup->items, titles);
    EXPECT_EQ(window.popup->selected, 2);
    EXPECT_FALSE(window.popup->enabled);
}

TEST(WindowSetUp, leavesExactlyFiveItemsWhenTheWindowComesOnScreenASecondTime) {
    const WindowUnderTest window;
    window.controller->viewDidAppear();
    window.popup->enabled = true;
    window.popup->selected = 0;
    window.controller->viewDidAppear();
    EXPECT_EQ(window.popup->items, titles);
    EXPECT_EQ(window.popup->selected, 2);
    EXPECT_FALSE(window.popup->enabled);
}

TEST(WindowSetUp, runsThePassAgainAtEveryAppearance) {
    const WindowUnderTest window{"cat", {{"cat", "Noun"}}};
    window.controller->viewDidAppear();
    window.controller->viewDidAppear();
    EXPECT_EQ(window.tagger->made, 2);
    EXPECT_EQ(window.controller->nouns, (WordDictionary{{"cat", 1}}));
}

TEST(WindowSetUp, hidesTheBusyIndicator) {
    const WindowUnderTest window;
    window.controller->viewDidAppear();
    EXPECT_TRUE(window.spinner->hidden);
}

TEST(WindowSetUp, makesTheControllerTheDelegateOfItsWindow) {
    const WindowUnderTest window;
    window.controller->viewDidAppear();
    EXPECT_EQ(window.view->ownWindow.delegate.lock(), window.controller);
}

TEST(WindowSetUp, skipsTheDelegateWhenTheViewIsInNoWindow) {
    const WindowUnderTest window;
    window.view->inWindow = false;
    window.controller->viewDidAppear();
    EXPECT_TRUE(window.view->ownWindow.delegate.expired());
    EXPECT_TRUE(window.spinner->hidden);
}

TEST(WindowSetUp, skipsTheDelegateWhenThereIsNoView) {
    const WindowUnderTest window;
    window.controller->view.reset();
    window.controller->viewDidAppear();
    EXPECT_TRUE(window.spinner->hidden);
}

TEST(WindowSetUp, keepsNoReferenceThatOutlivesTheController) {
    PlainWindow desktopWindow;
    {
        WindowUnderTest window;
        window.controller->viewDidAppear();
        desktopWindow.delegate = window.view->ownWindow.delegate;
    }
    EXPECT_TRUE(desktopWindow.delegate.expired());
}

TEST(WindowSetUpDeathTest, stopsTheProgramWithoutAPopUp) {
    const WindowUnderTest window;
    window.controller->typesPopup.reset();
    EXPECT_DEATH(window.controller->viewDidAppear(), "not connected");
}

TEST(WindowSetUpDeathTest, stopsTheProgramWithoutAnInputPaneAfterThePopUpIsDisabled) {
    const WindowUnderTest window;
    const auto popup = std::make_shared<SpokenPopUpButton>();
    window.controller->typesPopup = popup;
    window.controller->intextTextbox = nullptr;
    EXPECT_DEATH(window.controller->viewDidAppear(), "^disabled;fatal error: .*not connected");
}

TEST(WindowSetUpDeathTest, stopsTheProgramWithoutABusyIndicatorAfterThePass) {
    const WindowUnderTest window{"cat", {{"cat", "Noun"}}};
    window.controller->outtextTextbox = std::make_shared<SpokenPane>();
    window.controller->progressSpinner = nullptr;
    EXPECT_DEATH(window.controller->viewDidAppear(), "^shown cat;fatal error: .*not connected");
}

} // namespace
} // namespace lexiform
