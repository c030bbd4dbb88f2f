#include "platform/qt/windows/PaneCommands.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class PaneCommandsTest : public testing::Test {
protected:
    PaneCommandsTest() : window(desktop.typedInto("The cat sat.")) {
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
    }

    static void press(QWidget* widget, int key) {
        widget->setFocus();
        QTest::keyClick(widget, static_cast<Qt::Key>(key), Qt::ControlModifier);
    }

    static QList<int> zooms(const DocumentWindow& window) {
        QList<int> points;
        for (const PaneTextEdit* pane : window.panes()->all())
            points.append(pane->zoom());
        return points;
    }

    static QAction* action(const DocumentWindow& window, const QString& title) {
        for (QAction* each : window.findChildren<QAction*>())
            if (QString(each->text()).remove(u'&') == title) return each;
        return nullptr;
    }

    DesktopUnderTest desktop;
    DocumentWindow& window;
};

TEST_F(PaneCommandsTest, zoomThePaneThatHasTheKeyboard) {
    press(window.panes()->output(), Qt::Key_Plus);
    press(window.panes()->output(), Qt::Key_Equal);
    press(window.panes()->concordance(), Qt::Key_Minus);
    EXPECT_EQ(zooms(window), (QList<int>{0, 2, 0, -1}));
    press(window.panes()->output(), Qt::Key_0);
    EXPECT_EQ(zooms(window), (QList<int>{0, 0, 0, -1}));
}

TEST_F(PaneCommandsTest, rememberTheZoomForTheNextWindow) {
    press(window.panes()->output(), Qt::Key_Plus);
    EXPECT_EQ(zooms(desktop.typedInto("dog")), (QList<int>{0, 1, 0, 0}));
}

TEST_F(PaneCommandsTest, wrapTheInputAndTheOutputEachByItself) {
    action(window, "Wrap Lines of Output")->trigger();
    EXPECT_FALSE(window.panes()->output()->wrapsLines());
    EXPECT_TRUE(window.panes()->input()->wrapsLines());
    const DocumentWindow& next = desktop.typedInto("dog");
    EXPECT_FALSE(next.panes()->output()->wrapsLines());
    EXPECT_FALSE(action(next, "Wrap Lines of Output")->isChecked());
    EXPECT_TRUE(action(next, "Wrap Lines of Input")->isChecked());
}

TEST_F(PaneCommandsTest, goToTheTopAndTheEndOfEveryPane) {
    std::string text;
    for (int i = 0; i < 300; ++i)
        text += "line\n";
    for (PaneTextEdit* pane : window.panes()->all()) {
        pane->replaceText(AttributedText(text, Colour::text));
        const QScrollBar& bar = *pane->verticalScrollBar();
        press(pane, Qt::Key_End);
        EXPECT_GE(bar.value(), bar.maximum() - 1) << pane->accessibleName().toStdString();
        press(pane, Qt::Key_Home);
        EXPECT_EQ(bar.value(), 0);
        action(window, "Go to End")->trigger();
        EXPECT_GE(bar.value(), bar.maximum() - 1); // the rest is the margin below the text
        action(window, "Go to Top")->trigger();
        EXPECT_EQ(bar.value(), 0);
    }
}

} // namespace
} // namespace lexiform::qt
