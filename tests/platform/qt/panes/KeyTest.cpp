#include "platform/qt/adapters/QtTextField.h"
#include "platform/qt/panes/KeyTextEdit.h"
#include "platform/qt/panes/PaneFrame.h"
#include "platform/qt/theme/Palette.h"

#include <QImage>
#include <QScrollBar>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace lexiform::qt {

namespace {

const std::string nineLines = "particle\n\nverb\n\nnoun\n\nadjective\n\nadverb\n\npronoun\n\ndeterminer\n\n"
                              "preposition\n\nconjunction";

/// The key in a frame as a window of the least size shows it.
class Key : public testing::Test {
protected:
    Key() : frame("Key", key = new KeyTextEdit) {
        frame.setPalette(paletteOf(Appearance::light));
        frame.resize(164, 458);
        frame.show();
    }

    QImage shown() { return key->grab().toImage(); }

    // The rows of the key in which the middle of a swatch's column has the colour.
    std::pair<int, int> rowsOf(Colour colour, Appearance appearance = Appearance::light) {
        const QImage image = shown();
        std::pair<int, int> rows{-1, -1};
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(28, y) != valueOf(colour, appearance)) continue;
            if (rows.first < 0) rows.first = y;
            rows.second = y;
        }
        return rows;
    }

    double middleOfLine(int block) {
        QTextCursor cursor(key->document()->findBlockByNumber(block));
        return key->cursorRect(cursor).center().y();
    }

    KeyTextEdit* key;
    PaneFrame frame;
};

} // namespace

TEST_F(Key, hasASwatchBesideEachOfItsNineLines) {
    key->replaceText(AttributedText(nineLines, Colour::text));
    for (int line = 0; line < 9; ++line) {
        const auto [top, bottom] = rowsOf(static_cast<Colour>(line));
        EXPECT_EQ(bottom - top + 1, 12) << line;
        EXPECT_NEAR((top + bottom) / 2.0, middleOfLine(2 * line), 2.5) << line;
    }
}

TEST_F(Key, keepsSwatchesAtTheirPlaceOnTheLeft) {
    key->replaceText(AttributedText("particle", Colour::text));
    const QImage image = shown();
    const int row = rowsOf(Colour::gray).first + 6;
    const QColor gray = valueOf(Colour::gray, Appearance::light);
    EXPECT_NE(image.pixelColor(21, row), gray);
    EXPECT_EQ(image.pixelColor(22, row), gray);
    EXPECT_EQ(image.pixelColor(33, row), gray);
    EXPECT_NE(image.pixelColor(34, row), gray);
}

TEST_F(Key, fitsAWindow600High) {
    key->replaceText(AttributedText(nineLines, Colour::text));
    EXPECT_EQ(key->verticalScrollBar()->maximum(), 0);
}

TEST_F(Key, showsNothingWhenEmpty) {
    const QImage empty = shown();
    for (const char* text : {"", "\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n"}) {
        key->replaceText(AttributedText(text, Colour::text));
        EXPECT_EQ(shown(), empty);
    }
}

TEST_F(Key, leavesOutTheSwatchOfAnEmptyLine) {
    key->replaceText(AttributedText("one\n\n\n\nthree", Colour::text));
    EXPECT_GE(rowsOf(Colour::gray).first, 0);
    EXPECT_EQ(rowsOf(Colour::red).first, -1);
    const auto [top, bottom] = rowsOf(Colour::blue);
    EXPECT_NEAR((top + bottom) / 2.0, middleOfLine(4), 2.5);
}

TEST_F(Key, marksAWrappedLineAtItsBeginning) {
    key->replaceText(AttributedText("Arab, Cyrl, Grek, Hans, Latn and others\n\nverb", Colour::text));
    ASSERT_GT(key->document()->begin().layout()->lineCount(), 2);
    const auto [grayTop, grayBottom] = rowsOf(Colour::gray);
    EXPECT_NEAR((grayTop + grayBottom) / 2.0, middleOfLine(0), 2.5);
    const auto [redTop, redBottom] = rowsOf(Colour::red);
    EXPECT_NEAR((redTop + redBottom) / 2.0, middleOfLine(2), 2.5);
}

TEST_F(Key, movesSwatchesWithTheText) {
    frame.resize(164, 250);
    key->replaceText(AttributedText(nineLines, Colour::text));
    key->verticalScrollBar()->setValue(4);
    EXPECT_EQ(rowsOf(Colour::gray).first, -1);
    const auto [top, bottom] = rowsOf(Colour::green);
    EXPECT_NEAR((top + bottom) / 2.0, middleOfLine(6), 2.5);
}

TEST_F(Key, followsThePalette) {
    key->replaceText(AttributedText(nineLines, Colour::text));
    frame.setPalette(paletteOf(Appearance::dark));
    EXPECT_EQ(rowsOf(Colour::red).first, -1);
    EXPECT_GE(rowsOf(Colour::red, Appearance::dark).first, 0);
}

TEST_F(Key, letsLongWordsReachTheirOwnMargin) {
    key->replaceText(AttributedText("HHHHHHHHHHHHHHHHHHHHHHHHHHH", Colour::text));
    const QImage image = shown();
    int last = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            if (image.pixelColor(x, y).lightness() < 100) last = x;
    EXPECT_GT(last, image.width() - 8 - 14);
    EXPECT_LT(last, image.width() - 7);
}

TEST_F(Key, isSetThroughTheTextField) {
    QtTextField field(key);
    field.setStringValue("one\n\ntwo");
    EXPECT_EQ(key->text(), "one\n\ntwo");
    EXPECT_TRUE(key->isReadOnly());
}

TEST(KeyField, swallowsValuesOnceItsWidgetIsGone) {
    auto key = std::make_unique<KeyTextEdit>();
    QtTextField field(key.get());
    key.reset();
    field.setStringValue("nobody sees it");
}

} // namespace lexiform::qt
