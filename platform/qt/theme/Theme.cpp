#include "platform/qt/theme/Theme.h"

#include "platform/qt/theme/Palette.h"
#include "platform/qt/theme/StyleSheet.h"
#include "platform/qt/theme/toolkitAppearance.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QStyleFactory>
#include <QWidget>

namespace lexiform::qt {

namespace {

constexpr int middleLightness = 128;

Appearance appearanceOfDesktop(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::Window).lightness() < middleLightness;
    return isDark ? Appearance::dark : Appearance::light;
}

// A style sheet that is set gives widgets the fonts back that they had when they first got one.
void giveFontsAgain() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        QEvent change(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(window, &change);
    }
}

} // namespace

Theme::Theme(QApplication& application, AppearanceChoice choice)
    : application_(application), choice_(choice),
      desktopPalette_(appearanceOfDesktop(QApplication::palette())) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    setChoice(choice);
    application_.installEventFilter(this);
}

void Theme::setChoice(AppearanceChoice choice) {
    choice_ = choice;
    switch (choice) {
    case AppearanceChoice::system:
        show(desktopAppearance());
        break;
    case AppearanceChoice::light:
        show(Appearance::light);
        break;
    case AppearanceChoice::dark:
        show(Appearance::dark);
        break;
    }
    emit choiceChanged();
}

void Theme::setDesktopPreference(std::optional<Appearance> preference) {
    preference_ = preference;
    if (choice_ == AppearanceChoice::system && desktopAppearance() != shown_) show(desktopAppearance());
}

Appearance Theme::desktopAppearance() const {
    if (preference_) return *preference_;
    return toolkitAppearance().value_or(desktopPalette_);
}

void Theme::setClassMarks(const ClassMarks& marks) {
    if (classMarks_ == marks) return;
    classMarks_ = marks;
    emit classMarksChanged();
}

bool Theme::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange && watched == &application_ && !dressing_)
        followDesktop();
    if (event->type() == QEvent::ThemeChange) followDesktopSoon();
    return false;
}

// Every window is told of another theme of the desktop's.
void Theme::followDesktopSoon() {
    if (willFollow_) return;
    willFollow_ = true;
    QMetaObject::invokeMethod(this, &Theme::followDesktop, Qt::QueuedConnection);
}

// The program's own palette hides the desktop's: where nobody has put another in its place, taking it
// off for a moment is the only way to see the desktop's.
void Theme::followDesktop() {
    willFollow_ = false;
    const QScopedValueRollback guard(dressing_, true);
    if (QApplication::palette() == paletteOf(shown_)) QApplication::setPalette(QPalette());
    desktopPalette_ = appearanceOfDesktop(QApplication::palette());
    show(choice_ == AppearanceChoice::system ? desktopAppearance() : shown_);
}

void Theme::show(Appearance appearance) {
    const QScopedValueRollback guard(dressing_, true);
    shown_ = appearance;
    QApplication::setPalette(paletteOf(appearance));
    application_.setStyleSheet(styleSheetOf(appearance));
    giveFontsAgain();
}

} // namespace lexiform::qt
