#include "tests/platform/qt/panes/support/ShownPane.h"

#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

TEST(ScrolledLines, scrollByPageWithoutLosingALine) {
    ShownPane pane(lines(200));
    int lastSeen = -1;
    for (int page = 0; page < 30; ++page) {
        const int first = pane.cursorForPosition({30, 2}).blockNumber();
        EXPECT_LE(first, lastSeen + 1);
        lastSeen = pane.cursorForPosition({30, pane.viewport()->height() - 26}).blockNumber();
        pane.verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    }
    EXPECT_EQ(pane.verticalScrollBar()->value(), pane.verticalScrollBar()->maximum());
}

TEST(ScrolledLines, showTheLastLineWholeAtTheEnd) {
    ShownPane pane(lines(100) + "last");
    pane.verticalScrollBar()->setValue(pane.verticalScrollBar()->maximum());
    const QRect caret = pane.caretAt(pane.document()->characterCount() - 1);
    EXPECT_LE(caret.bottom(), pane.viewport()->height() - 22);
    EXPECT_GE(caret.bottom(), pane.viewport()->height() - 80);
}

TEST(ScrolledLines, comeBackToTheTopExactly) {
    ShownPane pane(lines(100));
    const QImage before = pane.grab().toImage();
    pane.verticalScrollBar()->setValue(60);
    pane.verticalScrollBar()->setValue(0);
    EXPECT_EQ(pane.caretAt(0).top(), 4);
    EXPECT_EQ(pane.grab().toImage(), before);
}

TEST(ScrolledLines, followTheCaretDownAndUp) {
    ShownPane pane(lines(100));
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(&pane, Qt::Key_Down);
        EXPECT_TRUE(pane.viewport()->rect().contains(pane.cursorRect().center())) << i;
    }
    EXPECT_EQ(pane.textCursor().blockNumber(), 60);
    for (int i = 0; i < 60; ++i)
        QTest::keyClick(&pane, Qt::Key_Up);
    EXPECT_EQ(pane.textCursor().blockNumber(), 0);
    EXPECT_EQ(pane.verticalScrollBar()->value(), 0);
    QTest::keyClick(&pane, Qt::Key_PageDown);
    EXPECT_GT(pane.textCursor().blockNumber(), 5);
    EXPECT_LT(pane.textCursor().blockNumber(), 12);
    QTest::keyClick(&pane, Qt::Key_PageUp);
    EXPECT_EQ(pane.textCursor().blockNumber(), 0);
}

} // namespace
} // namespace lexiform::qt
