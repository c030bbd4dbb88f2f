#include "platform/qt/windows/ScreenAppearance.h"

#include "platform/qt/theme/Theme.h"

#include <QApplication>
#include <QHideEvent>
#include <QShowEvent>
#include <QtTest/QSpontaneKeyEvent>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class ScreenAppearanceTest : public testing::Test {
protected:
    ScreenAppearanceTest() {
        new ScreenAppearance(window, [this] { ++appearances; });
    }

    void settle() { QApplication::processEvents(); }

    // What a window system sends when it takes a window off the screen and puts it back.
    template <typename Event>
    void sendFromWindowSystem() {
        Event event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&window, &event); // sending would clear the mark
    }

    QWidget window;
    int appearances = 0;
};

TEST_F(ScreenAppearanceTest, tellsOfTheFirstShowing) {
    EXPECT_EQ(appearances, 0);
    window.show();
    EXPECT_EQ(appearances, 1);
}

TEST_F(ScreenAppearanceTest, tellsAgainAfterBeingHidden) {
    window.show();
    window.hide();
    window.show();
    EXPECT_EQ(appearances, 2);
}

TEST_F(ScreenAppearanceTest, tellsAgainAfterBeingClosed) {
    window.show();
    window.close();
    window.show();
    EXPECT_EQ(appearances, 2);
}

TEST_F(ScreenAppearanceTest, isSilentWhenAShownWindowIsShown) {
    window.show();
    window.show();
    window.raise();
    EXPECT_EQ(appearances, 1);
}

TEST_F(ScreenAppearanceTest, isSilentWhenTheWindowIsRestored) {
    window.show();
    window.showMinimized();
    settle();
    window.showNormal();
    settle();
    EXPECT_EQ(appearances, 1);
}

TEST_F(ScreenAppearanceTest, isSilentWhenTheWindowSystemHidesAndShows) {
    window.show();
    sendFromWindowSystem<QHideEvent>();
    sendFromWindowSystem<QShowEvent>();
    EXPECT_EQ(appearances, 1);
}

TEST_F(ScreenAppearanceTest, isSilentWhenTheWindowIsResizedMaximisedOrMadeFullScreen) {
    window.show();
    window.resize(700, 500);
    settle();
    window.showMaximized();
    settle();
    window.showFullScreen();
    settle();
    window.showNormal();
    settle();
    EXPECT_EQ(appearances, 1);
}

TEST_F(ScreenAppearanceTest, isSilentWhenTheThemeChanges) {
    Theme theme(*qApp, AppearanceChoice::light);
    window.show();
    theme.setChoice(AppearanceChoice::dark);
    settle();
    EXPECT_EQ(appearances, 1);
}

TEST_F(ScreenAppearanceTest, tellsWhenAWindowIsFirstShownInAnotherState) {
    window.showFullScreen();
    settle();
    EXPECT_EQ(appearances, 1);
}

TEST_F(ScreenAppearanceTest, tellsWhenAMinimisedWindowWasHiddenAndIsShown) {
    window.show();
    window.showMinimized();
    settle();
    window.hide();
    window.showNormal();
    settle();
    EXPECT_EQ(appearances, 2);
}

} // namespace
} // namespace lexiform::qt
