#include "platform/qt/panes/softBreak.h"
#include "tests/platform/qt/panes/support/Editor.h"

#include <QApplication>
#include <QClipboard>

#include <gtest/gtest.h>

#include <string>

namespace lexiform::qt {

namespace {

int firstSoftBreak(const Editor& editor) {
    return editor.document()->begin().length() - 1;
}

} // namespace

TEST(SoftBreak, splitByEnterGetsTheTextsOwnEnd) {
    const std::string line = words(9000);
    Editor editor("x\r\n" + line);
    const int next = editor.document()->begin().next().next().position();
    editor.at(next + 10).press(Qt::Key_Return);
    // The CRLF and the soft break are one unit of the document each.
    const auto broken = static_cast<std::size_t>(next + 10 - 3);
    EXPECT_EQ(editor.text(), "x\r\n" + line.substr(0, broken) + "\r\n" + line.substr(broken));
}

TEST(SoftBreak, atItsVeryPlaceEnterWritesOneEnd) {
    const std::string line = words(9000);
    Editor editor(line);
    const int end = firstSoftBreak(editor);
    const auto broken = static_cast<std::size_t>(end);
    const std::string expected = line.substr(0, broken) + "\n" + line.substr(broken);
    editor.at(end).press(Qt::Key_Return);
    EXPECT_EQ(editor.text(), expected);
    EXPECT_GT(editor.document()->begin().next().length(), 1);
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), line);
    editor.at(end + 1).press(Qt::Key_Return);
    EXPECT_EQ(editor.text(), expected);
    EXPECT_GT(editor.document()->begin().next().length(), 1);
}

TEST(SoftBreak, isNoCharacterToDelete) {
    const std::string line = words(9000);
    Editor editor(line);
    const int end = firstSoftBreak(editor);
    const auto broken = static_cast<std::size_t>(end);
    editor.at(end + 1).press(Qt::Key_Backspace);
    EXPECT_EQ(editor.text(), line.substr(0, broken - 1) + line.substr(broken));
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), line);
    editor.at(end).press(Qt::Key_Delete);
    EXPECT_EQ(editor.text(), line.substr(0, broken) + line.substr(broken + 1));
}

TEST(SoftBreak, goesWhenItsLineBecomesShort) {
    Editor editor(words(9000));
    ASSERT_EQ(editor.softBreaks(), 2);
    editor.select(100, 8900).press(Qt::Key_Delete);
    EXPECT_EQ(editor.softBreaks(), 0);
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), words(9000));
    EXPECT_EQ(editor.softBreaks(), 2);
}

TEST(SoftBreak, isLeftOutOfACopy) {
    Editor editor(words(9000));
    const int end = firstSoftBreak(editor);
    editor.select(end - 5, end + 6);
    editor.copy();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              words(9000).substr(static_cast<std::size_t>(end) - 5, 10));
}

TEST(SoftBreak, comesWhenTypingMakesALineTooLong) {
    Editor editor(words(3999));
    editor.at(3999).type("abcdef");
    EXPECT_EQ(editor.softBreaks(), 1);
    EXPECT_EQ(editor.text(), words(3999) + "abcdef");
    while (editor.document()->isUndoAvailable())
        editor.undo();
    EXPECT_EQ(editor.text(), words(3999));
}

TEST(SoftBreak, comesWhenACommandJoinsTwoLongLines) {
    for (const char* command : {"edit-cut", "edit-delete"}) {
        Editor editor(words(3900) + "\n" + words(3900));
        editor.select(3900, 3901).choose(command);
        EXPECT_EQ(editor.text(), words(3900) + words(3900));
        EXPECT_LE(editor.longestBlock(), longestPiece) << command;
        editor.choose("edit-undo");
        EXPECT_EQ(editor.text(), words(3900) + "\n" + words(3900));
        EXPECT_EQ(editor.softBreaks(), 0);
        EXPECT_FALSE(editor.document()->isUndoAvailable());
        editor.choose("edit-redo");
        EXPECT_EQ(editor.text(), words(3900) + words(3900));
        EXPECT_LE(editor.longestBlock(), longestPiece) << command;
    }
}

TEST(SoftBreak, comesAfterARedoOfAnEditThatWasUndoneAtOnce) {
    Editor editor(words(3900) + "\n" + words(3900));
    editor.select(3900, 3901).cut();
    editor.undo();
    editor.choose("edit-redo");
    EXPECT_LE(editor.longestBlock(), longestPiece);
    editor.choose("edit-undo");
    EXPECT_EQ(editor.text(), words(3900) + "\n" + words(3900));
}

TEST(SoftBreak, leavesTheRestOfTheHistoryToARedo) {
    Editor editor(words(3900) + "\n" + words(3900));
    editor.select(3900, 3901).choose("edit-cut").select(10, 20).choose("edit-delete");
    const std::string last = editor.text();
    editor.choose("edit-undo").choose("edit-undo");
    EXPECT_FALSE(editor.document()->isUndoAvailable());
    editor.choose("edit-redo");
    EXPECT_LE(editor.longestBlock(), longestPiece);
    ASSERT_TRUE(editor.document()->isRedoAvailable());
    editor.choose("edit-redo");
    EXPECT_EQ(editor.text(), last);
}

} // namespace lexiform::qt
