#include "platform/qt/windows/FindBar.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class Find : public testing::Test {
protected:
    Find() : window(desktop.typedInto("Cat and cat, a cat on a concatenated mat.")), bar(*window.findBar()) {
        QApplication::setActiveWindow(&window);
        input.moveCursor(QTextCursor::Start);
        input.setFocus();
        QApplication::processEvents();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }

    void enter(const QString& text) { bar.findChild<QLineEdit*>()->setText(text); }

    void choose(const QString& title, bool on = true) {
        for (QCheckBox* box : bar.findChildren<QCheckBox*>())
            if (QString(box->text()).remove(u'&') == title) box->setChecked(on);
    }

    static QString selection(const PaneTextEdit& pane) {
        const QTextCursor cursor = pane.textCursor();
        return QStringLiteral("%1-%2").arg(cursor.selectionStart()).arg(cursor.selectionEnd());
    }

    DesktopUnderTest desktop;
    DocumentWindow& window;
    FindBar& bar;
    InputTextEdit& input = *window.panes()->input();
};

TEST_F(Find, opensWithTheKeyboardInItsField) {
    EXPECT_FALSE(bar.isVisible());
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(bar.findChild<QLineEdit*>()->hasFocus());
    EXPECT_EQ(bar.findChild<QLineEdit*>()->placeholderText(), "Find in Input");
}

TEST_F(Find, selectsThePlaceThatIsTyped) {
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "cat");
    EXPECT_EQ(selection(input), "0-3");
    EXPECT_EQ(bar.told(), "1 of 4");
    QTest::keyClicks(QApplication::focusWidget(), "e");
    EXPECT_EQ(selection(input), "27-31");
    EXPECT_EQ(bar.told(), "1 of 1");
    QTest::keyClicks(QApplication::focusWidget(), "x");
    EXPECT_EQ(bar.told(), "Not found");
}

TEST_F(Find, goesOnAndBackAndTellsWhereItStartsAgain) {
    press(Qt::Key_F, Qt::ControlModifier);
    enter("cat");
    press(Qt::Key_F3);
    EXPECT_EQ(selection(input), "8-11");
    press(Qt::Key_Return);
    press(Qt::Key_F3);
    EXPECT_EQ(bar.told(), "4 of 4");
    press(Qt::Key_F3);
    EXPECT_EQ(bar.told(), "1 of 4, from the top");
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(bar.told(), "4 of 4, from the end");
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(bar.told(), "3 of 4");
    EXPECT_EQ(selection(input), "15-18");
}

TEST_F(Find, heedsItsChoices) {
    press(Qt::Key_F, Qt::ControlModifier);
    enter("cat");
    choose("Whole word");
    EXPECT_EQ(bar.told(), "1 of 3");
    choose("Match case");
    EXPECT_EQ(bar.told(), "1 of 2");
    choose("Regular expression");
    enter("[cm]at");
    EXPECT_EQ(bar.told(), "1 of 3");
}

TEST_F(Find, tellsOfAnExpressionThatIsNone) {
    press(Qt::Key_F, Qt::ControlModifier);
    choose("Regular expression");
    enter("c(at");
    EXPECT_TRUE(bar.told().startsWith("Not a regular expression: ")) << bar.told().toStdString();
    EXPECT_TRUE(bar.told().endsWith("at character 5"));
    enter("c(at)");
    EXPECT_EQ(bar.told(), "1 of 4");
}

TEST_F(Find, closesOnEscapeAndGivesTheKeyboardBack) {
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Escape);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(input.hasFocus());
    press(Qt::Key_Escape);
    EXPECT_EQ(input.text(), "Cat and cat, a cat on a concatenated mat.");
}

TEST_F(Find, takesUpWhatIsSelected) {
    QTextCursor cursor = input.textCursor();
    cursor.setPosition(13);
    cursor.setPosition(18, QTextCursor::KeepAnchor);
    input.setTextCursor(cursor);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(bar.query().wanted, "a cat");
    EXPECT_EQ(selection(input), "13-18");
}

TEST_F(Find, searchesThePaneThatHadTheKeyboard) {
    window.textActions().parse->trigger();
    window.textActions().listWords->trigger();
    PaneTextEdit& list = *window.panes()->concordance();
    list.setFocus();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(bar.findChild<QLineEdit*>()->placeholderText(), "Find in Concordance");
    enter("Total");
    EXPECT_EQ(list.textCursor().selectedText(), "Total");
    EXPECT_FALSE(input.textCursor().hasSelection());
    press(Qt::Key_Escape);
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(Find, seesWhatWasTypedSince) {
    press(Qt::Key_F, Qt::ControlModifier);
    enter("cat");
    press(Qt::Key_Escape);
    input.moveCursor(QTextCursor::Start);
    input.insertPlainText("cat ");
    press(Qt::Key_F3);
    EXPECT_EQ(bar.told(), "2 of 5");
    EXPECT_EQ(selection(input), "4-7");
}

TEST_F(Find, findsAcrossASoftBreak) {
    const std::string line = std::string(3998, 'x') + "needle" + std::string(3000, 'y');
    input.replaceText(AttributedText(line, Colour::text));
    ASSERT_GT(input.document()->blockCount(), 1);
    press(Qt::Key_F, Qt::ControlModifier);
    enter("needle");
    EXPECT_EQ(bar.told(), "1 of 1");
    EXPECT_EQ(input.textCursor().selectedText().remove(QChar::ParagraphSeparator), "needle");
}

} // namespace
} // namespace lexiform::qt
