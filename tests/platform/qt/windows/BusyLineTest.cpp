#include "platform/qt/windows/BusyLine.h"

#include "platform/qt/theme/Theme.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

TEST(BusyLine, movesAPieceInTheFocusColourWhileItIsShown) {
    const Theme theme(*qApp, AppearanceChoice::light);
    BusyLine line;
    line.resize(400, 2);
    line.show();
    const QColor focus = surfacesOf(Appearance::light).focus;
    const auto hasPiece = [&] {
        const QImage image = line.grab().toImage();
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, 1) == focus) return true;
        return false;
    };
    EXPECT_FALSE(hasPiece());
    EXPECT_TRUE(QTest::qWaitFor(hasPiece, 2000));
}

} // namespace
} // namespace lexiform::qt
