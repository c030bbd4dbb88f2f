#include "tests/platform/qt/panes/support/Editor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace lexiform::qt {

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
