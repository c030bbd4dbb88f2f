#include "platform/qt/windows/WindowMenu.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class WindowMenuTest : public testing::Test {
protected:
    QList<QAction*> shownActions() {
        auto* menu = desktop.window(0).findChild<WindowMenu*>();
        emit menu->aboutToShow();
        return menu->actions();
    }

    DesktopUnderTest desktop;
};

TEST_F(WindowMenuTest, listsTheOpenWindowsAndTicksItsOwn) {
    desktop.documents.newDocument();
    desktop.documents.newDocument();
    const QList<QAction*> actions = shownActions();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions.at(0)->text(), "Untitled");
    EXPECT_EQ(actions.at(1)->text(), "Untitled 2");
    EXPECT_TRUE(actions.at(0)->isChecked());
    EXPECT_FALSE(actions.at(1)->isChecked());
}

TEST_F(WindowMenuTest, bringsTheChosenWindowForward) {
    desktop.documents.newDocument();
    desktop.documents.newDocument();
    desktop.window(1).showMinimized();
    QApplication::setActiveWindow(&desktop.window(0));
    shownActions().at(1)->trigger();
    QApplication::processEvents();
    EXPECT_TRUE(desktop.window(1).isActiveWindow());
    EXPECT_FALSE(desktop.window(1).isMinimized());
}

TEST_F(WindowMenuTest, showsAnAmpersandOfAFileName) {
    desktop.documents.open({desktop.file("salt & pepper.txt", "The cat")});
    EXPECT_EQ(shownActions().at(0)->text(), "salt && pepper.txt");
}

} // namespace
} // namespace lexiform::qt
