#include "platform/qt/panes/softBreak.h"
#include "tests/platform/qt/panes/support/Editor.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace lexiform::qt {

TEST(Typing, endsLinesAsTheTextDoes) {
    Editor editor("one\r\ntwo\r\nthree");
    editor.at(1).press(Qt::Key_Return).type("x");
    EXPECT_EQ(editor.text(), "o\r\nxne\r\ntwo\r\nthree");
}

TEST(Typing, endsLinesWithALineFeedInAnEmptyText) {
    Editor editor("");
    editor.type("a").press(Qt::Key_Return).type("b").press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(editor.text(), "a\nb\n");
}

TEST(Typing, endsALineAlikeWithShift) {
    Editor editor("one");
    editor.at(3).press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(editor.text(), "one\n");
}

TEST(Typing, endsLinesWithTheTextsOwnEndInsideALineThatDiffers) {
    Editor editor("a\nb\nlonely\rc\n");
    editor.at(9).press(Qt::Key_Return);
    EXPECT_EQ(editor.text(), "a\nb\nlonel\ny\rc\n");
    editor.at(12).press(Qt::Key_Return);
    EXPECT_EQ(editor.text(), "a\nb\nlonel\ny\r\nc\n");
}

TEST(Typing, inAnEmptyLineWithAForeignEndKeepsNewEndsOwn) {
    Editor editor("a\nb\n\r\nc\n");
    editor.at(4).type("xy").press(Qt::Key_Return).type("z").press(Qt::Key_Return);
    EXPECT_EQ(editor.text(), "a\nb\nxy\nz\n\r\nc\n");
}

TEST(Typing, ofATabWritesOne) {
    Editor editor("ab");
    editor.at(1).press(Qt::Key_Tab);
    EXPECT_EQ(editor.text(), "a\tb");
}

TEST(Typing, ofCtrlTabMovesOn) {
    QWidget window;
    auto first = std::make_unique<InputTextEdit>(&window);
    auto second = std::make_unique<InputTextEdit>(&window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    QTest::keyClick(first.get(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(second->hasFocus());
    EXPECT_EQ(first->text(), "");
    QTest::keyClick(second.get(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(first->hasFocus());
}

TEST(Deleting, aLineFromItsStartLeavesTheEndBeforeIt) {
    Editor editor("a\nb\nc\r\nd\re\n");
    editor.select(6, 8).press(Qt::Key_Delete); // "d" and its end
    EXPECT_EQ(editor.text(), "a\nb\nc\r\ne\n");
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), "a\nb\nc\r\nd\re\n");
}

TEST(Deleting, anEndRemovesThatOneOnly) {
    Editor editor("a\r\n\rb\n\n");
    editor.at(2).press(Qt::Key_Backspace);
    EXPECT_EQ(editor.text(), "a\rb\n\n");
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), "a\r\n\rb\n\n");
    editor.at(2).press(Qt::Key_Delete);
    EXPECT_EQ(editor.text(), "a\r\nb\n\n");
}

TEST(Deleting, overManyEndsAndTypingComesBackWithUndo) {
    const std::string text = "one\r\ntwo\rthree\xE2\x80\xA9"
                             "four\nfive\n\n";
    Editor editor(text);
    editor.select(2, 15).type("X");
    EXPECT_EQ(editor.text(), "onXour\nfive\n\n");
    while (editor.document()->isUndoAvailable())
        editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), text);
    while (editor.document()->isRedoAvailable())
        editor.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(editor.text(), "onXour\nfive\n\n");
}

TEST(Pasting, takesTheTextsOwnLineEnds) {
    Editor editor("a\r\nb\r\n");
    editor.at(1).paste("1\n2\r3\r\n4\u20295");
    EXPECT_EQ(editor.text(), "a1\r\n2\r\n3\r\n4\r\n5\r\nb\r\n");
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), "a\r\nb\r\n");
}

TEST(Pasting, keepsEveryOtherCharacter) {
    Editor editor("");
    const QString pasted = QStringLiteral("no\u00A0break \u2028 \uFDD0 \uFFFC\te\u0301") + QChar(0);
    editor.paste(pasted);
    EXPECT_EQ(editor.text(), pasted.toStdString());
}

TEST(Pasting, replacesTheSelectionInOneStep) {
    Editor editor("one\rtwo\rthree");
    editor.select(1, 9).paste("A\nB");
    EXPECT_EQ(editor.text(), "oA\rBhree");
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), "one\rtwo\rthree");
}

TEST(Pasting, ofAVeryLongLineBreaksItSoftly) {
    Editor editor("start end");
    const std::string line = words(100000);
    editor.at(6).paste(QString::fromStdString(line));
    EXPECT_EQ(editor.text(), "start " + line + "end");
    EXPECT_GT(editor.softBreaks(), 20);
    for (QTextBlock block = editor.document()->begin(); block.isValid(); block = block.next())
        EXPECT_LE(block.length(), longestPiece + 1);
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), "start end");
    editor.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(editor.text(), "start " + line + "end");
}

TEST(Pasting, takesThePlainTextOfAFormattedOne) {
    Editor editor("");
    QMimeData copied;
    copied.setHtml("<p>Another <b>text</b></p>");
    copied.setText("The **plain** text");
    EXPECT_EQ(editor.paste(copied).text(), "The **plain** text");
}

TEST(Pasting, readsAFormattedTextThatComesAlone) {
    Editor editor("");
    QMimeData copied;
    copied.setHtml("<p>Two <b>bold</b></p><p>lines &amp; more</p>");
    EXPECT_EQ(editor.paste(copied).text(), "Two bold\nlines & more");
}

TEST(Pasting, keepsTheNoBreakSpacesOfAFormattedText) {
    Editor editor("");
    QMimeData copied;
    copied.setHtml("<p>12&nbsp;hens</p>");
    EXPECT_EQ(editor.paste(copied).text(), "12\xC2\xA0"
                                           "hens");
}

TEST(Pasting, passesOverPicturesOfAPage) {
    Editor editor("as it was");
    QMimeData copied;
    copied.setHtml("<img src='hen.png'>");
    copied.setImageData(QImage(8, 8, QImage::Format_RGB32));
    EXPECT_EQ(editor.paste(copied).text(), "as it was");
}

TEST(Pasting, passesOverPictures) {
    Editor editor("as it was");
    QMimeData copied;
    copied.setImageData(QImage(8, 8, QImage::Format_RGB32));
    EXPECT_EQ(editor.paste(copied).text(), "as it was");
}

TEST(Copying, putsTheExactCharactersOnTheClipboard) {
    Editor editor("no\xC2\xA0"
                  "break\r\nnext\rline\xE2\x80\xA8"
                  "end");
    editor.selectAll();
    editor.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("no\u00A0break\r\nnext\rline\u2028end"));
}

TEST(Cutting, takesTheTextWithItsEndsAndPastingBringsItBackWithTheTextsOwn) {
    Editor editor("a\nb\r\nc\nd");
    editor.select(2, 6).press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), "a\nd");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("b\r\nc\n"));
    editor.press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), "a\nb\nc\nd");
}

TEST(InputHint, isPaintedInTheEmptyPaneAlone) {
    InputTextEdit pane;
    pane.resize(300, 200);
    const QImage without = pane.grab().toImage();
    pane.setHint("Type here");
    EXPECT_NE(pane.grab().toImage(), without);
    EXPECT_EQ(pane.text(), "");
    pane.replaceText(AttributedText(" ", Colour::text));
    EXPECT_EQ(pane.grab().toImage(), without);
}

} // namespace lexiform::qt
