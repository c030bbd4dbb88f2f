#include "platform/qt/panes/OutputTextEdit.h"
#include "tests/platform/qt/panes/support/ShownPane.h"

#include <QApplication>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

TEST(ZoomedLines, growUnderAWheelWithCtrlStepByStep) {
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

TEST(ZoomedLines, keepTheirPitchAtEverySize) {
    ShownPane pane("one\ntwo\nthree");
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

} // namespace
} // namespace lexiform::qt
