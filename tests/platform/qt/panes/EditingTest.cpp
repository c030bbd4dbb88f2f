#include "platform/qt/panes/InputTextEdit.h"
#include "platform/qt/panes/softBreak.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>

namespace lexiform::qt {

namespace {

/// An editable pane on screen whose caret is set by an offset in the document.
class Editor : public InputTextEdit {
public:
    explicit Editor(const std::string& text) {
        resize(400, 300);
        replaceText(AttributedText(text, Colour::text));
        show();
        setFocus();
    }

    Editor& at(int position) {
        select(position, position);
        return *this;
    }

    Editor& select(int from, int to) {
        QTextCursor cursor = textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
        return *this;
    }

    Editor& press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(this, key, modifiers);
        return settled();
    }

    Editor& type(const QString& keys) {
        for (const QChar key : keys) {
            QTest::keyClicks(this, key);
            settled();
        }
        return *this;
    }

    Editor& paste(const QString& pasted) {
        QMimeData data;
        data.setText(pasted);
        insertFromMimeData(&data);
        return settled();
    }

    // Chooses a command of the context menu.
    Editor& choose(const char* name) {
        const std::unique_ptr<QMenu> menu(createStandardContextMenu());
        menu->findChild<QAction*>(name)->trigger();
        return settled();
    }

    int longestBlock() const {
        int longest = 0;
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
            longest = std::max(longest, block.length() - 1);
        return longest;
    }

    int softBreaks() const {
        const QString raw = document()->toRawText();
        const auto ends = std::count(raw.begin(), raw.end(), QChar(QChar::ParagraphSeparator));
        std::string shown = text();
        return static_cast<int>(ends) - static_cast<int>(std::count(shown.begin(), shown.end(), '\n'));
    }

private:
    Editor& settled() {
        QCoreApplication::processEvents();
        return *this;
    }
};

std::string words(std::size_t length) {
    std::string text;
    while (text.size() < length)
        text += "some words ";
    text.resize(length);
    return text;
}

int firstSoftBreak(const Editor& editor) {
    return editor.document()->begin().length() - 1;
}

} // namespace

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

/// Random edits through the keyboard against the same edits of a string, then all of them undone.
class RandomEdits : public testing::TestWithParam<unsigned> {};

TEST_P(RandomEdits, giveTheSameTextAsAStringAndUndoToTheStart) {
    std::minstd_rand random(GetParam());
    const std::string start = "one\r\n\r\ntwo\r\rthree\n\nfour" + words(9500) + "\rfive\xE2\x80\xA9\r\n";
    Editor editor(start);
    for (int step = 0; step < 60; ++step) {
        const int count = editor.document()->characterCount();
        const int from = static_cast<int>(random() % static_cast<unsigned>(count));
        const int to =
            std::min(count - 1, from + static_cast<int>(random() % 40 * (random() % 9 == 0 ? 200 : 1)));
        editor.at(from);
        struct Probe : InputTextEdit {
            using InputTextEdit::exactSelection;
        };
        const auto before = [&](int upTo) {
            editor.select(0, upTo);
            return (editor.*&Probe::exactSelection)().toStdString();
        };
        const std::string all = editor.text();
        const std::string head = before(from);
        const std::string tail = all.substr(before(to).size());
        editor.select(from, to);
        std::string middle;
        switch (random() % 4) {
        case 0:
            if (from == to) continue;
            editor.press(Qt::Key_Delete);
            break;
        case 1:
            editor.press(Qt::Key_Return);
            middle = "\r\n";
            break;
        case 2:
            editor.paste("p\nq\rr");
            middle = "p\r\nq\r\nr";
            break;
        default:
            editor.type("k");
            middle = "k";
        }
        ASSERT_EQ(editor.ownLineEnd(), LineEnd::crlf);
        middle.insert(0, head).append(tail);
        ASSERT_EQ(editor.text(), middle) << "step " << step;
    }
    const std::string last = editor.text();
    while (editor.document()->isUndoAvailable())
        editor.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), start);
    while (editor.document()->isRedoAvailable())
        editor.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(editor.text(), last);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range(1U, 9U));

} // namespace lexiform::qt
