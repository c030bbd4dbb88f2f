#include "platform/qt/windows/PaneSplitter.h"

#include <QApplication>
#include <QSignalSpy>
#include <QSplitterHandle>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class PaneSplitterTest : public testing::Test {
protected:
    PaneSplitterTest() {
        splitter.addPane(new QWidget, 200, 1);
        splitter.addPane(new QWidget, 200, 1);
        splitter.addPane(new QWidget, 152, 0);
        splitter.addPane(new QWidget, 152, 0);
    }

    void showAtWidth(int width) {
        splitter.resize(width, 400);
        splitter.show();
        QApplication::processEvents();
    }

    void drag(int handle, int distance) {
        QWidget* grip = splitter.handle(handle);
        const QPoint from = grip->rect().center();
        QTest::mousePress(grip, Qt::LeftButton, {}, from);
        QTest::mouseMove(grip, from + QPoint(distance, 0));
        QTest::mouseRelease(grip, Qt::LeftButton, {}, from + QPoint(distance, 0));
    }

    PaneSplitter splitter;
};

TEST_F(PaneSplitterTest, givesTheTextsEqualRoomInAWideWindow) {
    showAtWidth(1264);
    EXPECT_EQ(splitter.sizes(), (QList<int>{424, 424, 168, 224}));
}

TEST_F(PaneSplitterTest, narrowsTheListsALittleInANarrowWindow) {
    showAtWidth(1008);
    EXPECT_EQ(splitter.sizes(), (QList<int>{318, 318, 164, 184}));
}

TEST_F(PaneSplitterTest, keepsToItsRuleWhileTheWindowIsResized) {
    showAtWidth(1008);
    splitter.resize(1264, 400);
    EXPECT_EQ(splitter.sizes(), (QList<int>{424, 424, 168, 224}));
}

TEST_F(PaneSplitterTest, tellsOfADragAndKeepsTheArrangement) {
    showAtWidth(1264);
    QSignalSpy arranged(&splitter, &PaneSplitter::arranged);
    drag(1, -60);
    ASSERT_GE(arranged.count(), 1);
    const QList<int> sizes = splitter.sizes();
    EXPECT_EQ(sizes, (QList<int>{364, 484, 168, 224}));
    splitter.resize(1364, 400);
    EXPECT_NE(splitter.sizes().at(0), splitter.sizes().at(1));
}

TEST_F(PaneSplitterTest, takesAnArrangementMadeEarlier) {
    splitter.arrange({300, 480, 200, 260});
    showAtWidth(1264);
    EXPECT_EQ(splitter.sizes(), (QList<int>{300, 480, 200, 260}));
}

TEST_F(PaneSplitterTest, leavesAnArrangementOfOtherPanesAlone) {
    splitter.arrange({300, 480});
    showAtWidth(1264);
    EXPECT_EQ(splitter.sizes(), (QList<int>{424, 424, 168, 224}));
}

TEST_F(PaneSplitterTest, neverLetsAPaneVanish) {
    showAtWidth(1264);
    drag(1, -600);
    EXPECT_EQ(splitter.sizes().at(0), 200);
}

} // namespace
} // namespace lexiform::qt
