#include "platform/qt/panes/InputTextEdit.h"
#include "platform/qt/panes/OutputTextEdit.h"
#include "platform/qt/panes/PaneScrollBar.h"
#include "platform/qt/theme/Palette.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFontInfo>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <string>

namespace lexiform::qt {

namespace {

class Pane : public InputTextEdit {
public:
    explicit Pane(const std::string& text, QSize size = {300, 250}) {
        setPalette(paletteOf(Appearance::light));
        resize(size);
        replaceText(AttributedText(text, Colour::text));
        show();
        setFocus();
        (void)grab();
    }

    QRect caretAt(int position) const {
        QTextCursor cursor(document());
        cursor.setPosition(position);
        return cursorRect(cursor);
    }

    int clickAt(QPoint point) {
        QTest::mouseClick(viewport(), Qt::LeftButton, {}, point);
        return textCursor().position();
    }

    qreal topOf(int block) const {
        return blockBoundingGeometry(document()->findBlockByNumber(block)).translated(contentOffset()).top();
    }

    double em() const { return QFontInfo(font()).pixelSize(); }
};

std::string lines(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "line " + std::to_string(i) + "\n";
    return text;
}

const std::string wrapped =
    "a paragraph that is long enough to go over several lines of the pane, as most do";

} // namespace

TEST(LinesOnScreen, stand145HundredthsOfAnEmApart) {
    const Pane pane("one\ntwo\nthree\nfour\nfive\nsix");
    for (int block = 1; block < 5; ++block)
        EXPECT_NEAR(pane.topOf(block + 1) - pane.topOf(block), 1.45 * pane.em(), 0.01);
    const Pane paragraph(wrapped);
    const QTextLayout& layout = *paragraph.document()->begin().layout();
    ASSERT_GT(layout.lineCount(), 2);
    EXPECT_NEAR(layout.lineAt(2).y() - layout.lineAt(1).y(), 1.45 * paragraph.em(), 0.05);
}

TEST(LinesOnScreen, areTallerWhereTheirCharactersAre) {
    const Pane pane("a\n\xE0\xB8\x97\xE0\xB8\xB5\xE0\xB9\x88 \xE0\xBD\xA6\xE0\xBE\x90\nb");
    for (QTextBlock block = pane.document()->begin(); block.next().isValid(); block = block.next()) {
        const QTextLine line = block.layout()->lineAt(0);
        const qreal slot = pane.topOf(block.blockNumber() + 1) - pane.topOf(block.blockNumber());
        const qreal topMargin = block.blockNumber() == 0 ? 12 : 0; // stands above what the editor counts
        EXPECT_GE(slot + topMargin, line.height() - 0.01);
    }
}

TEST(LinesOnScreen, keepTheirMargins) {
    const Pane pane(wrapped);
    EXPECT_NEAR(pane.caretAt(0).center().x(), 22, 1);
    EXPECT_EQ(pane.caretAt(0).top(), 4);
    const QTextLine line = pane.document()->begin().layout()->lineAt(0);
    EXPECT_EQ(line.x(), 22);
    EXPECT_NEAR(line.width(), pane.width() - 42, 0.01);
}

TEST(LinesOnScreen, breakAtTheSameWordsAtEveryHeightOfThePane) {
    Pane pane(wrapped + "\n" + wrapped);
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
    Pane pane("one line");
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
    const Pane pane(
        "\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7 abc\nabc \xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7");
    const QTextLine rightToLeft = pane.document()->begin().layout()->lineAt(0);
    EXPECT_NEAR(rightToLeft.naturalTextRect().right(), pane.width() - 20, 1);
    const QTextLine leftToRight = pane.document()->begin().next().layout()->lineAt(0);
    EXPECT_EQ(leftToRight.naturalTextRect().left(), 22);
}

TEST(LinesOnScreen, areHitWhereTheyAre) {
    Pane pane("first line\nsecond line\n" + wrapped);
    for (const int position : {0, 3, 10, 11, 15, 22, 23, 30, 70, 90}) {
        EXPECT_EQ(pane.clickAt(pane.caretAt(position).center()), position);
    }
}

TEST(LinesOnScreen, areHitInTheGapBelowThemToo) {
    Pane pane("first line\nsecond line\nthird");
    const int wanted = 15;
    const QRect caret = pane.caretAt(wanted);
    for (int y = caret.top(); y < pane.caretAt(24).top(); ++y)
        EXPECT_GT(pane.clickAt({caret.center().x(), y}), 11) << y - caret.top();
    for (int y = caret.top(); y < pane.caretAt(24).top(); ++y)
        EXPECT_NE(pane.clickAt({caret.center().x(), y}) % 23, 0) << y - caret.top();
}

TEST(LinesOnScreen, takeAClickInTheMargins) {
    Pane pane("first line\nsecond line");
    EXPECT_EQ(pane.clickAt({3, pane.caretAt(12).center().y()}), 11);
    EXPECT_EQ(pane.clickAt({40, 1}), pane.clickAt({40, 10}));
    EXPECT_EQ(pane.clickAt({40, 240}), 22);
}

TEST(LinesOnScreen, scrollByPageWithoutLosingALine) {
    Pane pane(lines(200));
    int lastSeen = -1;
    for (int page = 0; page < 30; ++page) {
        const int first = pane.cursorForPosition({30, 2}).blockNumber();
        EXPECT_LE(first, lastSeen + 1);
        lastSeen = pane.cursorForPosition({30, pane.viewport()->height() - 26}).blockNumber();
        pane.verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    }
    EXPECT_EQ(pane.verticalScrollBar()->value(), pane.verticalScrollBar()->maximum());
}

TEST(LinesOnScreen, showTheLastLineWholeAtTheEnd) {
    Pane pane(lines(100) + "last");
    pane.verticalScrollBar()->setValue(pane.verticalScrollBar()->maximum());
    const QRect caret = pane.caretAt(pane.document()->characterCount() - 1);
    EXPECT_LE(caret.bottom(), pane.viewport()->height() - 22);
    EXPECT_GE(caret.bottom(), pane.viewport()->height() - 80);
}

TEST(LinesOnScreen, comeBackToTheTopExactly) {
    Pane pane(lines(100));
    const QImage before = pane.grab().toImage();
    pane.verticalScrollBar()->setValue(60);
    pane.verticalScrollBar()->setValue(0);
    EXPECT_EQ(pane.caretAt(0).top(), 4);
    EXPECT_EQ(pane.grab().toImage(), before);
}

TEST(LinesOnScreen, followTheCaretDownAndUp) {
    Pane pane(lines(100));
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(&pane, Qt::Key_Down);
        EXPECT_TRUE(pane.viewport()->rect().contains(pane.cursorRect().center())) << i;
    }
    EXPECT_EQ(pane.textCursor().blockNumber(), 60);
    for (int i = 0; i < 60; ++i)
        QTest::keyClick(&pane, Qt::Key_Up);
    EXPECT_EQ(pane.textCursor().blockNumber(), 0);
    EXPECT_EQ(pane.verticalScrollBar()->value(), 0);
    QTest::keyClick(&pane, Qt::Key_PageDown);
    EXPECT_GT(pane.textCursor().blockNumber(), 5);
    EXPECT_LT(pane.textCursor().blockNumber(), 12);
    QTest::keyClick(&pane, Qt::Key_PageUp);
    EXPECT_EQ(pane.textCursor().blockNumber(), 0);
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
    Pane pane("one\ntwo");
    QTest::qWait(20);
    RepaintWatch watch(pane.viewport());
    QTest::keyClicks(&pane, "H");
    QTest::qWait(20);
    EXPECT_TRUE(watch.painted.contains(pane.caretAt(1).adjusted(-8, 0, 0, 0)));
}

TEST(LinesOnScreen, growUnderAWheelWithCtrlStepByStep) {
    OutputTextEdit pane;
    pane.resize(200, 200);
    pane.show();
    const int before = pane.font().pointSize();
    int told = 0;
    QObject::connect(&pane, &PaneTextEdit::zoomed, [&] { ++told; });
    const auto turn = [&](int eighths) {
        QWheelEvent wheel({50, 50}, pane.mapToGlobal(QPointF(50, 50)), {}, {0, eighths}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(pane.viewport(), &wheel);
        return pane.font().pointSize() - before;
    };
    EXPECT_EQ(turn(120), 1);
    EXPECT_EQ(turn(60), 1);
    EXPECT_EQ(turn(60), 2);
    EXPECT_EQ(turn(-240), 0);
    EXPECT_EQ(told, 3);
}

TEST(LinesOnScreen, keepTheirPitchAtEverySize) {
    Pane pane("one\ntwo\nthree");
    for (const int points : {-4, 6, 20}) {
        pane.setZoom(points);
        (void)pane.grab();
        EXPECT_EQ(pane.zoom(), points);
        EXPECT_NEAR(pane.topOf(2) - pane.topOf(1), 1.45 * pane.em(), 0.01);
    }
    pane.setZoom(-100);
    EXPECT_EQ(pane.font().pointSize(), 6);
    pane.setZoom(100);
    EXPECT_EQ(pane.font().pointSize(), 72);
}

TEST(LinesOnScreen, runOnToTheRightWhenTheyAreNotWrapped) {
    Pane pane(wrapped + " " + wrapped + "\n\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7 abc");
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
    Pane pane(line);
    QTest::keyClick(&pane, Qt::Key_X);
    (void)pane.grab();
    EXPECT_LT(timer.elapsed(), 3000); // a tenth of it by rights; sanitizers and busy machines take more
}

} // namespace lexiform::qt
