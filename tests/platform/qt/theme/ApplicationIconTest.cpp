#include "platform/qt/theme/ApplicationIcon.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPixmap>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <vector>

namespace lexiform::qt {
namespace {

QString iconFile(const QString& name) {
    return QStringLiteral(LEXIFORM_SOURCE_DIR "/resources/icons/") + name;
}

QImage paintedIcon(int size) {
    return applicationIcon().pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
}

struct Shape {
    QRectF area;
    QColor fill;
};

std::vector<Shape> shapesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::vector<Shape> shapes;
    for (QXmlStreamReader svg(&file); !svg.atEnd(); svg.readNext()) {
        if (!svg.isStartElement() || svg.name() != QLatin1String("rect")) continue;
        const auto number = [&](const char* name) {
            return svg.attributes().value(QLatin1String(name)).toDouble();
        };
        shapes.push_back({QRectF{number("x"), number("y"), number("width"), number("height")},
                          QColor(svg.attributes().value(QLatin1String("fill")).toString())});
    }
    return shapes;
}

int mostDifference(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
}

TEST(ApplicationIcon, hasTheShapesAndColoursOfItsDrawingForDesktops) {
    const std::vector<Shape> shapes = shapesOf(iconFile(QStringLiteral("lexiform.svg")));
    ASSERT_EQ(shapes.size(), 8U); // the sheet and seven words
    const QImage icon = paintedIcon(64);
    EXPECT_EQ(QColor(icon.pixel(32, 10)).name(), shapes.front().fill.name());
    for (auto word = std::next(shapes.begin()); word != shapes.end(); ++word) {
        const int middle = qRound(word->area.center().y());
        const int left = qRound(word->area.left());
        const int right = qRound(word->area.right());
        EXPECT_EQ(QColor(icon.pixel(left + 1, middle)).name(), word->fill.name()) << left;
        EXPECT_EQ(QColor(icon.pixel(right - 2, middle)).name(), word->fill.name()) << left;
        EXPECT_EQ(QColor(icon.pixel(left - 2, middle)).name(), shapes.front().fill.name()) << left;
    }
}

TEST(ApplicationIcon, isInTheFilesForDesktopsThatDrawNoSvg) {
    for (const int size : {48, 128, 256}) {
        const QImage file = QImage(iconFile(QStringLiteral("lexiform-%1.png").arg(size)))
                                .convertToFormat(QImage::Format_ARGB32);
        const QImage icon = paintedIcon(size);
        ASSERT_EQ(file.size(), icon.size());
        int different = 0;
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                if (mostDifference(file.pixel(x, y), icon.pixel(x, y)) > 32) ++different;
        // Two renderers smooth edges differently, at a few points of each outline.
        EXPECT_LT(different, size) << size;
    }
}

} // namespace
} // namespace lexiform::qt
