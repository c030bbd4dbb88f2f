#include "platform/qt/windows/wordDetailsText.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"
#include "tests/support/TableTagger.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

const std::vector<TableRow> bateaux = {
    {.word = "Bateaux", .script = "Latn", .lang = "fr", .type = "Noun", .lemma = "bateau"},
    {.word = " ", .script = "Latn", .lang = "fr", .type = "Whitespace"},
    {.word = "и", .script = "Cyrl", .type = "Conjunction", .lemma = "<b>"},
    {.word = "!", .type = "SentenceTerminator"}};

class WordTip : public testing::Test {
protected:
    WordTip() : window(open(desktop)) {}

    static DocumentWindow& open(DesktopUnderTest& desktop) {
        desktop.makeTagger = tableTaggers(bateaux);
        return desktop.typedInto(QString::fromStdString(textOf(bateaux)));
    }

    // What is shown while the pointer rests on the character at a position of the output.
    [[nodiscard]] QString tipAt(int position) const {
        QTextCursor cursor(output.document());
        cursor.setPosition(position);
        const QPoint point = output.cursorRect(cursor).center() + QPoint(2, 0);
        QHelpEvent help(QEvent::ToolTip, point, output.viewport()->mapToGlobal(point));
        QApplication::sendEvent(output.viewport(), &help);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    }

    DesktopUnderTest desktop;
    DocumentWindow& window;
    OutputTextEdit& output = *window.panes()->output();
};

TEST_F(WordTip, tellsClassLemmaLanguageAndScriptAfterParse) {
    window.textActions().parse->trigger();
    EXPECT_EQ(tipAt(2), "noun\nLemma: bateau\nLanguage: French\nScript: Latin");
}

TEST_F(WordTip, tellsTheSameAfterMultiParse) {
    window.textActions().multiParse->trigger();
    EXPECT_EQ(tipAt(2), "noun\nLemma: bateau\nLanguage: French\nScript: Latin");
}

TEST_F(WordTip, leavesOutWhatIsNotKnown) {
    window.textActions().parse->trigger();
    EXPECT_EQ(tipAt(8), "conjunction\nLemma: <b>\nScript: Cyrillic");
    EXPECT_EQ(tipAt(9), "end of a sentence");
}

TEST_F(WordTip, isAbsentOverWhiteSpace) {
    window.textActions().parse->trigger();
    ASSERT_NE(tipAt(2), "");
    (void)tipAt(7);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 2000));
}

TEST_F(WordTip, isToldToAssistiveTechnologyAtTheCaretOfAReader) {
    window.textActions().parse->trigger();
    QApplication::setActiveWindow(&window);
    output.setFocus();
    output.moveCursor(QTextCursor::Right);
    ASSERT_TRUE(output.hasFocus());
    EXPECT_EQ(output.accessibleDescription(), "noun\nLemma: bateau\nLanguage: French\nScript: Latin");
}

TEST(WordDetailsText, namesEachTagOfAClassInWords) {
    EXPECT_EQ(textOf({.type = "OrganizationName"}), "name of an organisation");
    EXPECT_EQ(textOf({.type = "SomethingElse"}), "SomethingElse");
    EXPECT_EQ(textOf({.type = "ParagraphBreak", .script = "Latn"}), "");
    EXPECT_EQ(textOf({}), "");
}

} // namespace
} // namespace lexiform::qt
