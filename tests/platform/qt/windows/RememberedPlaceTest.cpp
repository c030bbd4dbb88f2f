#include "platform/qt/windows/RememberedPlace.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QScreen>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

const QList<QRect> oneScreen = {{0, 0, 1280, 800}};
const QList<QRect> twoScreens = {{0, 0, 1280, 800}, {1280, 0, 1920, 1080}};

TEST(BroughtOnScreen, leavesAWindowThatIsOnAScreenAlone) {
    EXPECT_EQ(broughtOnScreen({100, 50, 600, 400}, oneScreen), QRect(100, 50, 600, 400));
    EXPECT_EQ(broughtOnScreen({1500, 50, 600, 400}, twoScreens), QRect(1500, 50, 600, 400));
}

TEST(BroughtOnScreen, bringsBackAWindowThatIsOffEveryScreen) {
    EXPECT_EQ(broughtOnScreen({1500, 50, 600, 400}, oneScreen), QRect(680, 50, 600, 400));
    EXPECT_EQ(broughtOnScreen({-900, -900, 600, 400}, twoScreens), QRect(0, 0, 600, 400));
}

TEST(BroughtOnScreen, bringsBackAWindowThatHangsOffItsScreen) {
    EXPECT_EQ(broughtOnScreen({-50, 600, 600, 400}, oneScreen), QRect(0, 400, 600, 400));
}

TEST(BroughtOnScreen, makesAWindowNoLargerThanItsScreen) {
    EXPECT_EQ(broughtOnScreen({10, 10, 3000, 2000}, oneScreen), QRect(0, 0, 1280, 800));
}

class RememberedPlaceTest : public testing::Test {
protected:
    DocumentWindow& newWindow() {
        desktop.documents.newDocument();
        QApplication::processEvents();
        return desktop.window(desktop.documents.documents().size() - 1);
    }

    DesktopUnderTest desktop;
};

TEST_F(RememberedPlaceTest, isTheOneOfTheWindowThatWasClosedLast) {
    DocumentWindow& first = newWindow();
    first.move(30, 40);
    first.resize(760, 500);
    first.close();
    DocumentWindow& second = newWindow();
    EXPECT_EQ(second.pos(), QPoint(30, 40));
    EXPECT_EQ(second.size(), QSize(760, 500));
}

TEST_F(RememberedPlaceTest, isNotTakenTwice) {
    DocumentWindow& first = newWindow();
    first.move(30, 20);
    first.resize(760, 500);
    first.close();
    DocumentWindow& second = newWindow();
    EXPECT_NE(newWindow().pos(), second.pos());
}

TEST_F(RememberedPlaceTest, isBroughtBackOnAScreen) {
    desktop.store.setWindowPlace("window", {9000, 9000});
    desktop.store.setWindowSize("window", {760, 500});
    const DocumentWindow& window = newWindow();
    // How wide the sides of a frame are is not known before it is shown.
    const QRect screen = window.screen()->availableGeometry().marginsAdded({0, 0, 4, 4});
    EXPECT_EQ(window.geometry() & screen, window.geometry());
}

TEST_F(RememberedPlaceTest, comesBackWhenAMaximisedWindowIsRestored) {
    DocumentWindow& first = newWindow();
    first.move(30, 20);
    first.resize(760, 500);
    first.hide();
    first.showMaximized();
    first.close();
    EXPECT_EQ(desktop.store.windowSize("window"), QSize(760, 500));
    EXPECT_TRUE(newWindow().isMaximized());
}

TEST_F(RememberedPlaceTest, keepsTheWidthsOfThePanes) {
    DocumentWindow& first = newWindow();
    first.panes()->arrange({300, 400, 160, 180});
    emit first.panes()->arranged(first.panes()->sizes());
    const QList<int> sizes = first.panes()->sizes();
    first.close();
    EXPECT_EQ(newWindow().panes()->sizes(), sizes);
}

} // namespace
} // namespace lexiform::qt
