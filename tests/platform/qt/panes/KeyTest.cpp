#include "platform/qt/adapters/QtTextField.h"
#include "platform/qt/panes/KeyTextEdit.h"
#include "platform/qt/panes/PaneFrame.h"
#include "platform/qt/theme/Palette.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QScrollBar>
#include <QTest>
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

    void giveKeyboard() {
        QApplication::setActiveWindow(&frame);
        key->setFocus();
        ASSERT_TRUE(key->hasFocus());
    }

    // The block that is tinted beside its swatch; -1 for none.
    int tintedLine() {
        const QImage image = shown();
        for (QTextBlock block = key->document()->begin(); block.isValid(); block = block.next())
            if (image.pixelColor(16, qRound(middleOfLine(block.blockNumber()))) == tint)
                return block.blockNumber();
        return -1;
    }

    double middleOfLine(int block) {
        QTextCursor cursor(key->document()->findBlockByNumber(block));
        return key->cursorRect(cursor).center().y();
    }

    // The visual lines of a block as texts.
    QStringList linesOf(int block) {
        const QTextBlock shownBlock = key->document()->findBlockByNumber(block);
        (void)shown();
        QStringList lines;
        for (int i = 0; i < shownBlock.layout()->lineCount(); ++i) {
            const QTextLine line = shownBlock.layout()->lineAt(i);
            lines.append(shownBlock.text().mid(line.textStart(), line.textLength()));
        }
        return lines;
    }

    const QColor tint = surfacesOf(Appearance::light).selection;
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

TEST_F(Key, wrapsALineAfterTheCommasBetweenItsValues) {
    key->replaceText(
        AttributedText("Person,Organ,Place\n\nverb\n\nfi,ffi,il,il,il,il,il,il,il,il", Colour::text));
    EXPECT_EQ(linesOf(0), (QStringList{"Person,Organ,", "Place"}));
    EXPECT_EQ(linesOf(2), QStringList{"verb"});
    for (const QString& line : linesOf(4))
        EXPECT_TRUE(line.endsWith(u',') || line.endsWith(u'l')) << line.toStdString();
    EXPECT_EQ(linesOf(4).join(u""), key->document()->findBlockByNumber(4).text());
    EXPECT_EQ(key->text(), "Person,Organ,Place\n\nverb\n\nfi,ffi,il,il,il,il,il,il,il,il");
    key->selectAll();
    key->copy();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), key->text());
    const auto [top, bottom] = rowsOf(Colour::gray);
    EXPECT_NEAR((top + bottom) / 2.0, middleOfLine(0), 2.5);
    const auto [redTop, redBottom] = rowsOf(Colour::red);
    EXPECT_NEAR((redTop + redBottom) / 2.0, middleOfLine(2), 2.5);
}

TEST_F(Key, wrapsBetweenValuesInEveryWidth) {
    const std::string values = "Person,Organ,Place,il,fi, Organ,Person, il,Place,Person,Person,Organ";
    key->replaceText(AttributedText(values, Colour::text));
    for (int width = 152; width < 240; ++width) {
        frame.resize(width, 458);
        const QStringList lines = linesOf(0);
        EXPECT_EQ(lines.join(u"").toStdString(), values);
        for (const QString& line : lines.first(lines.size() - 1))
            EXPECT_TRUE(line.trimmed().endsWith(u',')) << width << ' ' << line.toStdString();
    }
}

TEST_F(Key, breaksAValueOnlyWhereItIsTooWide) {
    key->replaceText(AttributedText("Serbo Croat, Old Norse, and a very long value, x", Colour::text));
    EXPECT_EQ(linesOf(0), (QStringList{"Serbo Croat, ", "Old Norse, ", "and a very ", "long value, x"}));
}

TEST_F(Key, wrapsAnewInAnotherWidth) {
    key->replaceText(AttributedText("Person,Organ,Place", Colour::text));
    ASSERT_EQ(linesOf(0).size(), 2);
    frame.resize(400, 458);
    EXPECT_EQ(linesOf(0), QStringList{"Person,Organ,Place"});
    frame.resize(164, 458);
    EXPECT_EQ(linesOf(0).size(), 2);
}

TEST_F(Key, scrollsToTheEndOfWrappedLines) {
    frame.resize(164, 110);
    key->replaceText(
        AttributedText("Person,Organ,Place,Person,Organ,Place,Person,Organ,Place", Colour::text));
    (void)shown();
    const int lines = static_cast<int>(linesOf(0).size());
    EXPECT_EQ(key->document()->lineCount(), lines);
    EXPECT_GT(key->verticalScrollBar()->maximum(), 0);
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

TEST_F(Key, tintsTheLineThatTheKeyboardIsOn) {
    key->replaceText(AttributedText(nineLines, Colour::text));
    EXPECT_EQ(tintedLine(), -1);
    giveKeyboard();
    EXPECT_EQ(tintedLine(), 0);
    QTest::keyClick(key, Qt::Key_Down);
    EXPECT_EQ(tintedLine(), 2);
    QTest::keyClick(key, Qt::Key_Up);
    QTest::keyClick(key, Qt::Key_Up);
    EXPECT_EQ(tintedLine(), 0);
    key->clearFocus();
    EXPECT_EQ(tintedLine(), -1);
}

TEST_F(Key, tintsTheLineThatWasClicked) {
    key->replaceText(AttributedText(nineLines, Colour::text));
    giveKeyboard();
    const QPoint place = key->cursorRect(QTextCursor(key->document()->findBlockByNumber(6))).center();
    QTest::mouseClick(key->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(tintedLine(), 6);
}

TEST_F(Key, stepsOverLinesWithoutASwatch) {
    key->replaceText(AttributedText("one\n\n\n\nthree\n\n", Colour::text));
    giveKeyboard();
    QTest::keyClick(key, Qt::Key_Down);
    EXPECT_EQ(tintedLine(), 4);
    QTest::keyClick(key, Qt::Key_Down);
    EXPECT_EQ(tintedLine(), 4);
}

TEST_F(Key, tintsAWrappedLineAsAWhole) {
    key->replaceText(AttributedText("Person,Organ,Place\n\nverb", Colour::text));
    giveKeyboard();
    ASSERT_EQ(linesOf(0).size(), 2);
    const QTextLine last = key->document()->begin().layout()->lineAt(1);
    EXPECT_EQ(shown().pixelColor(16, static_cast<int>(last.y() + last.height() / 2)), tint);
}

TEST_F(Key, showsASelectionInThePlaceOfItsTint) {
    key->replaceText(AttributedText(nineLines, Colour::text));
    giveKeyboard();
    QTest::keyClick(key, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_TRUE(key->textCursor().hasSelection());
    EXPECT_EQ(tintedLine(), -1);
}

TEST_F(Key, hasNoCaret) {
    key->replaceText(AttributedText(nineLines, Colour::text));
    giveKeyboard();
    const QImage image = shown();
    const QColor caret = surfacesOf(Appearance::light).focus;
    for (int x = 0; x < image.width(); ++x)
        EXPECT_NE(image.pixelColor(x, qRound(middleOfLine(0))), caret) << x;
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
