#include "platform/qt/windows/ClassMarkActions.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QClipboard>
#include <QMimeData>
#include <QTextBlock>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

QAction* actionTitled(const QWidget& window, const QString& title) {
    for (QAction* action : window.findChildren<QAction*>())
        if (action->text() == title) return action;
    return nullptr;
}

// Whether anything but the pane's own surface is painted below the base line of the characters in a range.
bool isUnderlined(QPlainTextEdit& pane, int from, int to) {
    QTextCursor cursor(pane.document());
    cursor.setPosition(from);
    const QRect first = pane.cursorRect(cursor);
    cursor.setPosition(to);
    const int right = pane.cursorRect(cursor).left();
    const QImage image = pane.viewport()->grab().toImage();
    const int base = first.top() + QFontMetrics(pane.font()).ascent();
    const QRgb surface = image.pixel(2, 2);
    for (int y = base + 3; y <= base + 6; ++y)
        for (int x = first.left() + 2; x < right - 1; ++x) // the ends of lines are softened
            if (image.pixel(x, y) != surface) return true;
    return false;
}

class ClassMarksTest : public testing::Test {
protected:
    ClassMarksTest() : window(desktop.typedInto("The cat sat.")) { window.textActions().parse->trigger(); }

    DesktopUnderTest desktop;
    DocumentWindow& window;
    OutputTextEdit& output = *window.panes()->output();
    KeyTextEdit& key = *window.panes()->key();
};

TEST_F(ClassMarksTest, areTheStandardOnesAtFirst) {
    EXPECT_EQ(output.paintedColourAt(8), valueOf(Colour::red, Appearance::light));
    EXPECT_FALSE(isUnderlined(output, 8, 11));
}

TEST_F(ClassMarksTest, changeThePaletteInEveryWindowAtOnce) {
    DocumentWindow& other = desktop.typedInto("cat");
    other.textActions().parse->trigger();
    actionTitled(window, "&Colour-Blind Palette")->trigger();
    EXPECT_EQ(output.paintedColourAt(8), valueOf(Colour::red, Appearance::light, ClassPalette::colourBlind));
    EXPECT_EQ(other.panes()->output()->paintedColourAt(0),
              valueOf(Colour::blue, Appearance::light, ClassPalette::colourBlind));
    EXPECT_TRUE(actionTitled(other, "&Colour-Blind Palette")->isChecked());
    actionTitled(other, "&Colour-Blind Palette")->trigger();
    EXPECT_EQ(output.paintedColourAt(8), valueOf(Colour::red, Appearance::light));
}

TEST_F(ClassMarksTest, underlineWordsButNotTheSpaceBetween) {
    actionTitled(window, "&Underline Classes")->trigger();
    EXPECT_TRUE(isUnderlined(output, 4, 7));
    EXPECT_TRUE(isUnderlined(output, 8, 11));
    EXPECT_FALSE(isUnderlined(output, 7, 8));
    EXPECT_FALSE(isUnderlined(output, 11, 12));
}

TEST_F(ClassMarksTest, underlineNoWordThatIsDimmed) {
    actionTitled(window, "&Underline Classes")->trigger();
    output.toggleOnly(Colour::red);
    EXPECT_FALSE(isUnderlined(output, 4, 7));
    EXPECT_TRUE(isUnderlined(output, 8, 11));
}

TEST_F(ClassMarksTest, underlineTheKeyInTheSameWay) {
    const int noun = key.document()->findBlockByNumber(4).position();
    EXPECT_FALSE(isUnderlined(key, noun, noun + 4));
    actionTitled(window, "&Underline Classes")->trigger();
    EXPECT_TRUE(isUnderlined(key, noun, noun + 4));
    actionTitled(window, "&Underline Classes")->trigger();
    EXPECT_FALSE(isUnderlined(key, noun, noun + 4));
}

TEST_F(ClassMarksTest, leaveTheTextAndItsColoursAsTheyAre) {
    const AttributedText before = output.attributedText();
    actionTitled(window, "&Colour-Blind Palette")->trigger();
    actionTitled(window, "&Underline Classes")->trigger();
    EXPECT_EQ(output.attributedText(), before);
    output.selectAll();
    output.copy();
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains(
        valueOf(Colour::red, Appearance::light).name()));
}

TEST_F(ClassMarksTest, areRememberedForTheNextRun) {
    actionTitled(window, "&Colour-Blind Palette")->trigger();
    actionTitled(window, "&Underline Classes")->trigger();
    EXPECT_EQ(desktop.store.classMarks(),
              (ClassMarks{.palette = ClassPalette::colourBlind, .underlined = true}));
    EXPECT_TRUE(desktop.defaults->strings.empty());
}

} // namespace
} // namespace lexiform::qt
