#include "platform/qt/theme/Theme.h"

#include "platform/qt/theme/LineIcon.h"
#include "platform/qt/theme/Palette.h"
#include "platform/qt/theme/StyleSheet.h"

#include <QApplication>
#include <QFont>
#include <QSignalSpy>
#include <QStyle>
#include <QWidget>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

QPalette desktopPalette(const QColor& window) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, window.lightness() < 128 ? Qt::white : Qt::black);
    return palette;
}

// The one colour that an icon draws in, less the pixels that are only partly covered.
QColor inkOf(const QIcon& icon, QIcon::Mode mode) {
    const QImage image = icon.pixmap(lineIconSize * 4, 1.0, mode).toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) == 255) return QColor::fromRgb(image.pixel(x, y));
    return {};
}

class ThemeTest : public testing::Test {
protected:
    ~ThemeTest() override {
        qApp->setStyleSheet({});
        QApplication::setPalette(QPalette());
    }
};

TEST_F(ThemeTest, startsLikeALightDesktop) {
    QApplication::setPalette(desktopPalette(Qt::white));
    const Theme theme(*qApp, AppearanceChoice::system);
    EXPECT_EQ(theme.appearance(), Appearance::light);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0xF2F3F5));
}

TEST_F(ThemeTest, startsLikeADarkDesktop) {
    QApplication::setPalette(desktopPalette(QColor(40, 40, 40)));
    const Theme theme(*qApp, AppearanceChoice::system);
    EXPECT_EQ(theme.appearance(), Appearance::dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0x23272D));
}

TEST_F(ThemeTest, followsTheDesktopWhileItRuns) {
    const Theme theme(*qApp, AppearanceChoice::system);
    QApplication::setPalette(desktopPalette(Qt::black));
    EXPECT_EQ(theme.appearance(), Appearance::dark);
    QApplication::setPalette(desktopPalette(Qt::white));
    EXPECT_EQ(theme.appearance(), Appearance::light);
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
}

TEST_F(ThemeTest, looksUnderItsOwnPaletteForTheDesktops) {
    QApplication::setPalette(desktopPalette(Qt::black));
    const Theme theme(*qApp, AppearanceChoice::system);
    ASSERT_EQ(theme.appearance(), Appearance::dark);
    // The test platform's own palette is a light one.
    QEvent change(QEvent::ApplicationPaletteChange);
    QApplication::sendEvent(qApp, &change);
    EXPECT_EQ(theme.appearance(), Appearance::light);
}

TEST_F(ThemeTest, keepsAChoiceAgainstTheDesktop) {
    Theme theme(*qApp, AppearanceChoice::light);
    QApplication::setPalette(desktopPalette(Qt::black));
    EXPECT_EQ(theme.appearance(), Appearance::light);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0xF2F3F5));
    theme.setChoice(AppearanceChoice::system);
    EXPECT_EQ(theme.appearance(), Appearance::dark);
}

TEST_F(ThemeTest, takesWhatTheDesktopSaysBeforeItsPalette) {
    QApplication::setPalette(desktopPalette(Qt::white));
    Theme theme(*qApp, AppearanceChoice::system);
    theme.setDesktopPreference(Appearance::dark);
    EXPECT_EQ(theme.appearance(), Appearance::dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(0x15181C));
    theme.setDesktopPreference(std::nullopt);
    EXPECT_EQ(theme.appearance(), Appearance::light);
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
}

TEST_F(ThemeTest, keepsAChoiceAgainstWhatTheDesktopSays) {
    Theme theme(*qApp, AppearanceChoice::light);
    theme.setDesktopPreference(Appearance::dark);
    EXPECT_EQ(theme.appearance(), Appearance::light);
    theme.setChoice(AppearanceChoice::system);
    EXPECT_EQ(theme.appearance(), Appearance::dark);
}

TEST_F(ThemeTest, looksAtTheDesktopAgainWhenAWindowLearnsOfAnotherTheme) {
    QApplication::setPalette(desktopPalette(Qt::black));
    const Theme theme(*qApp, AppearanceChoice::system);
    ASSERT_EQ(theme.appearance(), Appearance::dark);
    QWidget window;
    QEvent change(QEvent::ThemeChange);
    QApplication::sendEvent(&window, &change);
    QCoreApplication::processEvents();
    EXPECT_EQ(theme.appearance(), Appearance::light);
}

TEST_F(ThemeTest, tellsOfAChoice) {
    Theme theme(*qApp, AppearanceChoice::light);
    const QSignalSpy changes(&theme, &Theme::choiceChanged);
    theme.setChoice(AppearanceChoice::dark);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(ThemeTest, leavesTheSystemFontAlone) {
    const QFont before = QApplication::font();
    const Theme theme(*qApp, AppearanceChoice::dark);
    EXPECT_EQ(QApplication::font(), before);
}

TEST_F(ThemeTest, usesFusion) {
    const Theme theme(*qApp, AppearanceChoice::light);
    qApp->setStyleSheet({}); // a style sheet hides the style below it
    EXPECT_EQ(QApplication::style()->name(), QStringLiteral("fusion"));
}

TEST_F(ThemeTest, fillsEveryNameOfTheStyleSheet) {
    for (const Appearance appearance : {Appearance::light, Appearance::dark})
        EXPECT_FALSE(styleSheetOf(appearance).contains(u'$'));
}

TEST_F(ThemeTest, paintsIconsInTheTextColourOfTheAppearance) {
    Theme theme(*qApp, AppearanceChoice::light);
    for (const Glyph glyph : {Glyph::parse, Glyph::multiParse, Glyph::list, Glyph::save}) {
        const QIcon icon = lineIcon(glyph);
        theme.setChoice(AppearanceChoice::light);
        EXPECT_EQ(inkOf(icon, QIcon::Normal), QColor(0x1B1E23));
        EXPECT_EQ(inkOf(icon, QIcon::Disabled), QColor(0x8B929D));
        theme.setChoice(AppearanceChoice::dark);
        EXPECT_EQ(inkOf(icon, QIcon::Normal), QColor(0xE7E9EC));
    }
}

} // namespace
} // namespace lexiform::qt
