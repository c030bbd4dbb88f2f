#include "platform/qt/panes/PaneScrollBar.h"
#include "platform/qt/theme/Palette.h"
#include "tests/platform/qt/panes/support/ShownPane.h"

#include <QElapsedTimer>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <string>

namespace lexiform::qt {

namespace {

const std::string wrapped =
    "a paragraph that is long enough to go over several lines of the pane, as most do";

} // namespace

TEST(LinesOnScreen, stand145HundredthsOfAnEmApart) {
    const ShownPane pane("one\ntwo\nthree\nfour\nfive\nsix");
    for (int block = 1; block < 5; ++block)
        EXPECT_NEAR(pane.topOf(block + 1) - pane.topOf(block), 1.45 * pane.em(), 0.01);
    const ShownPane paragraph(wrapped);
    const QTextLayout& layout = *paragraph.document()->begin().layout();
    ASSERT_GT(layout.lineCount(), 2);
    EXPECT_NEAR(layout.lineAt(2).y() - layout.lineAt(1).y(), 1.45 * paragraph.em(), 0.05);
}

TEST(LinesOnScreen, areTallerWhereTheirCharactersAre) {
    const ShownPane pane("a\n\xE0\xB8\x97\xE0\xB8\xB5\xE0\xB9\x88 \xE0\xBD\xA6\xE0\xBE\x90\nb");
    for (QTextBlock block = pane.document()->begin(); block.next().isValid(); block = block.next()) {
        const QTextLine line = block.layout()->lineAt(0);
        const qreal slot = pane.topOf(block.blockNumber() + 1) - pane.topOf(block.blockNumber());
        const qreal topMargin = block.blockNumber() == 0 ? 12 : 0; // stands above what the editor counts
        EXPECT_GE(slot + topMargin, line.height() - 0.01);
    }
}

TEST(LinesOnScreen, keepTheirMargins) {
    const ShownPane pane(wrapped);
    EXPECT_NEAR(pane.caretAt(0).center().x(), 22, 1);
    EXPECT_EQ(pane.caretAt(0).top(), 4);
    const QTextLine line = pane.document()->begin().layout()->lineAt(0);
    EXPECT_EQ(line.x(), 22);
    EXPECT_NEAR(line.width(), pane.width() - 42, 0.01);
}

TEST(LinesOnScreen, breakAtTheSameWordsAtEveryHeightOfThePane) {
    ShownPane pane(wrapped + "\n" + wrapped);
    const auto lineCounts = [&](int height) {
        pane.resize(300, height);
        (void)pane.grab();
        QList<int> counts{pane.verticalScrollBar()->width()};
        for (QTextBlock block = pane.document()->begin(); block.isValid(); block = block.next())
            counts.append(block.layout()->lineCount());
        return counts;
    };
    const QList<int> tall = lineCounts(600);
    EXPECT_EQ(pane.verticalScrollBar()->maximum(), 0);
    for (int height = 60; height < 600; height += 7)
        EXPECT_EQ(lineCounts(height), tall) << height;
    (void)lineCounts(60);
    EXPECT_GT(pane.verticalScrollBar()->maximum(), 0);
}

TEST(LinesOnScreen, haveNoScrollBarToSeeWhileAllAreShown) {
    ShownPane pane("one line");
    const auto isBlank = [&] {
        const QImage image = pane.verticalScrollBar()->grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != image.pixel(0, 0)) return false;
        return true;
    };
    EXPECT_TRUE(isBlank());
    pane.replaceText(AttributedText(lines(100), Colour::text));
    EXPECT_FALSE(isBlank());
    EXPECT_EQ(pane.verticalScrollBar()->width(), PaneScrollBar::barWidth);
}

TEST(LinesOnScreen, keepRightWhereAParagraphBeginsRightToLeft) {
    const ShownPane pane(
        "\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7 abc\nabc \xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7");
    const QTextLine rightToLeft = pane.document()->begin().layout()->lineAt(0);
    EXPECT_NEAR(rightToLeft.naturalTextRect().right(), pane.width() - 20, 1);
    const QTextLine leftToRight = pane.document()->begin().next().layout()->lineAt(0);
    EXPECT_EQ(leftToRight.naturalTextRect().left(), 22);
}

TEST(LinesOnScreen, areHitWhereTheyAre) {
    ShownPane pane("first line\nsecond line\n" + wrapped);
    for (const int position : {0, 3, 10, 11, 15, 22, 23, 30, 70, 90}) {
        EXPECT_EQ(pane.clickAt(pane.caretAt(position).center()), position);
    }
}

TEST(LinesOnScreen, areHitInTheGapBelowThemToo) {
    ShownPane pane("first line\nsecond line\nthird");
    const int wanted = 15;
    const QRect caret = pane.caretAt(wanted);
    for (int y = caret.top(); y < pane.caretAt(24).top(); ++y)
        EXPECT_GT(pane.clickAt({caret.center().x(), y}), 11) << y - caret.top();
    for (int y = caret.top(); y < pane.caretAt(24).top(); ++y)
        EXPECT_NE(pane.clickAt({caret.center().x(), y}) % 23, 0) << y - caret.top();
}

TEST(LinesOnScreen, takeAClickInTheMargins) {
    ShownPane pane("first line\nsecond line");
    EXPECT_EQ(pane.clickAt({3, pane.caretAt(12).center().y()}), 11);
    EXPECT_EQ(pane.clickAt({40, 1}), pane.clickAt({40, 10}));
    EXPECT_EQ(pane.clickAt({40, 240}), 22);
}

/// Notes what of a viewport is repainted.
class RepaintWatch : public QObject {
public:
    explicit RepaintWatch(QWidget* viewport) { viewport->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
        return QObject::eventFilter(watched, event);
    }
    QRegion painted;
};

TEST(LinesOnScreen, areRepaintedWholeWhenTheyChange) {
    ShownPane pane("one\ntwo");
    QTest::qWait(20);
    RepaintWatch watch(pane.viewport());
    QTest::keyClicks(&pane, "H");
    QTest::qWait(20);
    EXPECT_TRUE(watch.painted.contains(pane.caretAt(1).adjusted(-8, 0, 0, 0)));
}

TEST(LinesOnScreen, runOnToTheRightWhenTheyAreNotWrapped) {
    ShownPane pane(wrapped + " " + wrapped + "\n\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7 abc");
    EXPECT_GT(pane.document()->begin().layout()->lineCount(), 1);
    pane.setWrapsLines(false);
    (void)pane.grab();
    EXPECT_EQ(pane.document()->begin().layout()->lineCount(), 1);
    EXPECT_EQ(pane.document()->lastBlock().layout()->lineAt(0).naturalTextRect().left(), 22);
    QScrollBar& bar = *pane.horizontalScrollBar();
    ASSERT_TRUE(bar.isVisible());
    pane.moveCursor(QTextCursor::Start);
    pane.moveCursor(QTextCursor::EndOfLine);
    EXPECT_TRUE(pane.viewport()->rect().contains(pane.cursorRect().center()));
    EXPECT_GT(bar.value(), 0);
    bar.setValue(bar.maximum());
    EXPECT_NEAR(pane.cursorRect().center().x(), pane.viewport()->width() - 10, 2);
    pane.setWrapsLines(true);
    (void)pane.grab();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(bar.value(), 0);
    EXPECT_GT(pane.document()->begin().layout()->lineCount(), 1);
}

TEST(LinesOnScreen, takeOneSecondForNoLineOfAMegabyte) {
    std::string line;
    while (line.size() < 1000000)
        line += "words and words ";
    QElapsedTimer timer;
    timer.start();
    ShownPane pane(line);
    QTest::keyClick(&pane, Qt::Key_X);
    (void)pane.grab();
    EXPECT_LT(timer.elapsed(), 3000); // a tenth of it by rights; sanitizers and busy machines take more
}

} // namespace lexiform::qt
