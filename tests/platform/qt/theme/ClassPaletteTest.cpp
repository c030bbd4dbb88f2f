#include "platform/qt/theme/ClassMarks.h"

#include "tests/platform/qt/theme/support/ColourVision.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <set>

namespace lexiform::qt {
namespace {

constexpr int colours = static_cast<int>(Colour::text) + 1;
constexpr std::array appearances = {Appearance::light, Appearance::dark};

QColor value(int colour, Appearance appearance, ClassPalette palette) {
    return valueOf(static_cast<Colour>(colour), appearance, palette);
}

double leastDifference(Appearance appearance, ClassPalette palette, const Vision& vision) {
    double least = 100;
    for (int a = 0; a < colours; ++a)
        for (int b = 0; b < a; ++b) {
            const auto lab = [&](int colour) {
                return labOf(seen(lightOf(value(colour, appearance, palette)), vision));
            };
            least = std::min(least, difference(lab(a), lab(b)));
        }
    return least;
}

// What is painted under a word of 40 pixels, as the bytes of a picture.
QByteArray pictureOf(Colour colour) {
    QImage image(48, 24, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintClassLine(painter, classLineOf(colour), {4, 10, 44, 10}, 16, Qt::black);
    return {reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()};
}

TEST(ClassPalette, standsOutFromEveryBackgroundOfItsAppearance) {
    for (const Appearance appearance : appearances)
        for (const ClassPalette palette : {ClassPalette::standard, ClassPalette::colourBlind})
            for (int colour = 0; colour < colours; ++colour)
                EXPECT_GE(contrast(value(colour, appearance, palette), surfacesOf(appearance).pane), 4.6)
                    << "colour " << colour;
}

TEST(ClassPalette, canBeToldApartByColourBlindReaders) {
    for (const Appearance appearance : appearances)
        for (const Vision& vision : visions)
            EXPECT_GE(leastDifference(appearance, ClassPalette::colourBlind, vision), 14) << vision.name;
}

TEST(ClassPalette, isForReadersWhoConfuseTheStandardColours) {
    for (const Appearance appearance : appearances)
        EXPECT_LT(leastDifference(appearance, ClassPalette::standard, visions[1]), 5);
}

TEST(ClassPalette, leavesTheTextColourAlone) {
    for (const Appearance appearance : appearances)
        EXPECT_EQ(valueOf(Colour::text, appearance, ClassPalette::colourBlind),
                  valueOf(Colour::text, appearance));
}

// The pairs of the standard test data for the formula.
TEST(ClassPalette, isMeasuredByTheFormulaForColourDifferences) {
    EXPECT_NEAR(difference({50, 2.6772, -79.7751}, {50, 0, -82.7485}), 2.0425, 0.0001);
    EXPECT_NEAR(difference({50, 2.5, 0}, {50, 0, -2.5}), 4.3065, 0.0001);
    EXPECT_NEAR(difference({50, 2.5, 0}, {61, -5, 29}), 22.8977, 0.0001);
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.001);
}

TEST(ClassLines, areOfAnotherStyleForEachClass) {
    std::set<QByteArray> pictures;
    for (int colour = 0; colour < colours; ++colour)
        pictures.insert(pictureOf(static_cast<Colour>(colour)));
    EXPECT_EQ(pictures.size(), static_cast<std::size_t>(colours));
}

TEST(ClassLines, areNotThereForTheTextColour) {
    EXPECT_EQ(pictureOf(Colour::text), QByteArray(pictureOf(Colour::text).size(), '\xFF'));
}

} // namespace
} // namespace lexiform::qt
