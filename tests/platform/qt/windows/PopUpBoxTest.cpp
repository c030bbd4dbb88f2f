#include "platform/qt/windows/PopUpBox.h"

#include "platform/qt/adapters/QtPopUpButton.h"
#include "platform/qt/theme/Theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <array>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

constexpr std::array<std::string_view, 3> titles = {"Script", "Language", "Types"};

class PopUpBoxTest : public testing::Test {
protected:
    PopUpBoxTest() { button.addItems(titles); }

    [[nodiscard]] QColor paintedAt(QPoint point) { return box.grab().toImage().pixelColor(point); }

    Theme theme{*qApp, AppearanceChoice::light};
    PopUpBox box;
    QtPopUpButton button{&box};
};

TEST_F(PopUpBoxTest, runsNoActionWhenAnItemIsSelectedForIt) {
    const QSignalSpy chosen(&box, &QComboBox::activated);
    button.selectItem(2);
    EXPECT_EQ(box.currentText(), "Types");
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(PopUpBoxTest, runsItsActionWhenAPersonChooses) {
    const QSignalSpy chosen(&box, &QComboBox::activated);
    box.show();
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.currentText(), "Language");
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(PopUpBoxTest, isEmptiedAndFilledAgain) {
    button.removeAllItems();
    EXPECT_EQ(box.count(), 0);
    button.addItems(titles);
    button.addItems(titles);
    EXPECT_EQ(box.count(), 6);
}

TEST_F(PopUpBoxTest, showsByItsFillWhetherItIsEnabled) {
    const QPoint inside(60, 6);
    EXPECT_EQ(paintedAt(inside), surfacesOf(Appearance::light).controlFill);
    button.setEnabled(false);
    EXPECT_EQ(paintedAt(inside), surfacesOf(Appearance::light).window);
}

TEST_F(PopUpBoxTest, keepsItsSizeInEveryState) {
    box.show();
    EXPECT_EQ(box.sizeHint(), QSize(136, 36));
    box.setFocus();
    QApplication::processEvents();
    EXPECT_EQ(box.sizeHint(), QSize(136, 36));
}

TEST_F(PopUpBoxTest, marksThePointedItemAndTicksTheSetOne) {
    button.selectItem(0);
    box.show();
    box.showPopup();
    QApplication::processEvents();
    box.view()->setCurrentIndex(box.model()->index(1, 0));
    const QImage list = box.view()->viewport()->grab().toImage();
    const QRect pointed = box.view()->visualRect(box.model()->index(1, 0));
    EXPECT_EQ(list.pixelColor(pointed.right() - 8, pointed.center().y()),
              surfacesOf(Appearance::light).selection);
    const QRect set = box.view()->visualRect(box.model()->index(0, 0));
    bool ticked = false;
    for (int x = set.left(); x < set.left() + 30; ++x)
        for (int y = set.top(); y < set.bottom(); ++y)
            ticked = ticked || list.pixelColor(x, y).lightness() < 100;
    EXPECT_TRUE(ticked);
    box.hidePopup();
}

TEST(QtPopUpButton, doesNothingOnceItsBoxIsGone) {
    auto box = std::make_unique<PopUpBox>();
    QtPopUpButton button(box.get());
    box.reset();
    button.addItems(titles);
    button.selectItem(1);
    button.setEnabled(false);
    button.removeAllItems();
}

} // namespace
} // namespace lexiform::qt
