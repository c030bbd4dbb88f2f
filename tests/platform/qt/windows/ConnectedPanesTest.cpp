#include "platform/qt/windows/connectPanes.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"
#include "tests/support/TableTagger.h"

#include <QAccessible>
#include <QCheckBox>
#include <QHelpEvent>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class ConnectedPanes : public testing::Test {
protected:
    ConnectedPanes() : window(desktop.typedInto("The cat sat. The cat sat.")) {
        QApplication::setActiveWindow(&window);
        window.textActions().parse->trigger();
        QApplication::processEvents();
    }

    // A point in the middle of the character at a position.
    static QPoint pointOf(const PaneTextEdit& pane, int position) {
        QTextCursor cursor(pane.document());
        cursor.setPosition(position);
        return pane.cursorRect(cursor).center() + QPoint(3, 0);
    }

    DesktopUnderTest desktop;
    DocumentWindow& window;
    OutputTextEdit& output = *window.panes()->output();
    KeyTextEdit& key = *window.panes()->key();
};

TEST_F(ConnectedPanes, dimTheOtherClassesAndBringThemBack) {
    const QColor verb = *output.paintedColourAt(8);
    const QColor noun = *output.paintedColourAt(4);
    const AttributedText before = output.attributedText();
    const int line = key.document()->findBlockByNumber(2).position();
    QTest::mouseClick(key.viewport(), Qt::LeftButton, {}, pointOf(key, line));
    EXPECT_EQ(*output.paintedColourAt(8), verb);
    EXPECT_EQ(*output.paintedColourAt(4), surfacesOf(Appearance::light).disabledText);
    EXPECT_EQ(output.attributedText(), before);
    QTest::mouseClick(key.viewport(), Qt::LeftButton, {}, pointOf(key, line));
    EXPECT_EQ(*output.paintedColourAt(4), noun);
}

TEST_F(ConnectedPanes, dimByTheKeyboardUntilTheNextPass) {
    const QColor noun = *output.paintedColourAt(4);
    key.moveCursor(QTextCursor::Start);
    QTest::keyClick(&key, Qt::Key_Return);
    EXPECT_NE(*output.paintedColourAt(4), noun);
    window.textActions().parse->trigger();
    EXPECT_EQ(*output.paintedColourAt(4), noun);
}

TEST_F(ConnectedPanes, findAListedWordInTheOutput) {
    window.textActions().listWords->trigger();
    PaneTextEdit& list = *window.panes()->concordance();
    const int line = list.document()->find("cat (2)").selectionStart();
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, pointOf(list, line));
    EXPECT_EQ(output.textCursor().selectionStart(), 4);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, pointOf(list, line));
    EXPECT_EQ(output.textCursor().selectionStart(), 17);
    EXPECT_EQ(window.findBar()->told(), "2 of 2");
}

TEST(ConnectedPanesOfLemmas, findAListedLemmaInEachOfItsForms) {
    const std::vector<TableRow> boats = {{.word = "Boats", .type = "Noun", .lemma = "boat"},
                                         {.word = " ", .type = "Whitespace"},
                                         {.word = "lay", .type = "Verb", .lemma = "lie"},
                                         {.word = " ", .type = "Whitespace"},
                                         {.word = "lie", .type = "Verb", .lemma = "lie"}};
    DesktopUnderTest desktop;
    desktop.makeTagger = tableTaggers(boats);
    DocumentWindow& window = desktop.typedInto(QString::fromStdString(textOf(boats)));
    window.textActions().multiParse->trigger();
    window.textActions().listWords->trigger();
    emit window.panes()->concordance()->lineDoubleClicked("lie (2)");
    QTextCursor found = window.panes()->output()->textCursor();
    EXPECT_EQ(found.selectedText(), "lay");
    EXPECT_EQ(window.findBar()->told(), "1 of 2");
    emit window.panes()->concordance()->lineDoubleClicked("lie (2)");
    found = window.panes()->output()->textCursor();
    EXPECT_EQ(found.selectedText(), "lie");
    emit window.panes()->concordance()->lineDoubleClicked("boat (1)");
    EXPECT_EQ(window.findBar()->query(), (FindQuery{.wanted = "boats", .wholeWord = true}));
}

TEST_F(ConnectedPanes, takeAListedWordAsItStands) {
    EXPECT_EQ(listedWord("well-known (12)"), "well-known");
    EXPECT_EQ(listedWord("Nouns:"), "");
    EXPECT_EQ(listedWord("Total Nouns = 2"), "");
}

TEST_F(ConnectedPanes, tellTheClassAtTheCaretAndUnderThePointer) {
    QTextCursor cursor = output.textCursor();
    cursor.setPosition(5);
    output.setTextCursor(cursor);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&output)->text(QAccessible::Description), "noun");
    const QPoint point = pointOf(output, 9);
    QHelpEvent help(QEvent::ToolTip, point, output.viewport()->mapToGlobal(point));
    QApplication::sendEvent(output.viewport(), &help);
    EXPECT_TRUE(QToolTip::text().startsWith("<p>verb")) << QToolTip::text().toStdString();
}

TEST_F(ConnectedPanes, areFoundByNameWithAllOtherControls) {
    window.findBar()->show();
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus) continue;
        if (widget->focusProxy() || widget->objectName().startsWith("qt_")) continue;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(accessible, nullptr);
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << widget->metaObject()->className();
        EXPECT_NE(accessible->role(), QAccessible::NoRole) << widget->metaObject()->className();
    }
}

} // namespace
} // namespace lexiform::qt
