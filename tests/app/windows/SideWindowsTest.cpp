#include "app/LXFWindow.h"
#include "tests/app/ShellUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

class SideWindows : public testing::Test {
protected:
    ShellUnderTest shell;
    AppDelegate& delegate = *shell.delegate;
};
using SideWindowsDeathTest = SideWindows;

TEST_F(SideWindows, areNotOpenAtFirst) {
    EXPECT_TRUE(delegate.myColours.empty());
    EXPECT_TRUE(delegate.myPalettes.empty());
    EXPECT_TRUE(delegate.myHelpWindow.empty());
}

TEST_F(SideWindows, areMadeAnewByEveryCommandAndKept) {
    delegate.openHelp(nullptr);
    delegate.openHelp(nullptr);
    delegate.openColours(nullptr);
    delegate.openPalette(nullptr);
    EXPECT_EQ(shell.storyboard->asked,
              (std::vector<std::string>{"Help Window Controller", "Help Window Controller",
                                        "Colour Window Controller", "Palette Window Controller"}));
    ASSERT_EQ(delegate.myHelpWindow.size(), 2U);
    EXPECT_NE(delegate.myHelpWindow[0], delegate.myHelpWindow[1]);
    EXPECT_EQ(delegate.myColours.size(), 1U);
    EXPECT_EQ(delegate.myPalettes.size(), 1U);
}

TEST_F(SideWindows, areShownOnceOnBehalfOfTheDelegate) {
    delegate.openPalette(nullptr);
    const auto shown = std::dynamic_pointer_cast<ShownWindowController>(delegate.myPalettes.front());
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->senders, std::vector<const ActionSender*>{&delegate});
}

TEST_F(SideWindowsDeathTest, stopTheProgramWhenTheirSceneIsNoWindow) {
    EXPECT_DEATH(delegate.openAuxiliaryWindow("No Window", delegate.myColours), "no window");
    EXPECT_DEATH(delegate.openAuxiliaryWindow("Unknown", delegate.myColours), "no window");
}

TEST_F(SideWindows, leadToTwoPagesOfTheMaker) {
    shell.workspace->succeeds = false;
    delegate.openUpdates(nullptr);
    delegate.openSupport(nullptr);
    EXPECT_EQ(shell.workspace->opened,
              (std::vector<std::string>{"https://maker.example/updates", "https://maker.example/support"}));
    EXPECT_TRUE(shell.alerts.empty());
}

TEST_F(SideWindowsDeathTest, stopTheProgramAtAPageWithoutAnAddress) {
    EXPECT_DEATH(delegate.openWebPage("https://maker.example/two words"), "absent");
}

/// A window of the application's class that shows nothing.
class HiddenWindow : public LXFWindow {
public:
    using LXFWindow::LXFWindow;

    void setDelegate(std::weak_ptr<WindowDelegate> /*delegate*/) override {}
    [[nodiscard]] std::string title() const override { return ""; }
    void setTitle(const std::string& /*title*/) override {}
};

TEST(LXFWindow, passesOnWhatItIsMadeWith) {
    const StyleMask style = styleOf({StyleMask::titled, StyleMask::resizable});
    const HiddenWindow window({10, 20, 300, 400}, style, BackingStore::nonretained, true);
    EXPECT_EQ(window.contentRect(), (ContentRect{10, 20, 300, 400}));
    EXPECT_EQ(window.styleMask(), style);
    EXPECT_EQ(window.backingType(), BackingStore::nonretained);
    EXPECT_TRUE(window.isDeferred());
}

} // namespace
} // namespace lexiform
