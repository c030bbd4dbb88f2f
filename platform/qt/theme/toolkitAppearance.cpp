#include "platform/qt/theme/toolkitAppearance.h"

#include "platform/qt/theme/Toolkit.h"

#include <QRegularExpression>

namespace lexiform::qt {

namespace {

bool isDarkTheme(const QString& name) {
    static const QRegularExpression dark(QStringLiteral("[:-]dark"),
                                         QRegularExpression::CaseInsensitiveOption);
    return name.contains(dark);
}

bool isDark(const Toolkit& toolkit) {
    return toolkit.flag("gtk-application-prefer-dark-theme") || isDarkTheme(toolkit.text("gtk-theme-name"));
}

} // namespace

// The order is Qt's at the start of a program.
std::optional<Appearance> toolkitAppearance() {
    const Toolkit toolkit;
    if (!toolkit.hasSettings()) return std::nullopt;
    const QString forced = qEnvironmentVariable("GTK_THEME");
    return (forced.isEmpty() ? isDark(toolkit) : isDarkTheme(forced)) ? Appearance::dark : Appearance::light;
}

} // namespace lexiform::qt
