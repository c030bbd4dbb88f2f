#include "platform/qt/panes/PaneFont.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>

namespace lexiform::qt {

namespace {

constexpr int usualSize = 12; // points

} // namespace

QFont paneFont() {
    QFont font = QApplication::font();
    for (const QString& family :
         {QStringLiteral("Noto Sans"), QStringLiteral("Source Sans 3"), QStringLiteral("Inter")}) {
        if (!QFontDatabase::hasFamily(family)) continue;
        font.setFamilies({family});
        break;
    }
    // A desktop set to larger text than this has its reasons.
    font.setPointSize(std::max(usualSize, font.pointSize()));
    font.setStyleHint(QFont::SansSerif);
    return font;
}

qreal linePitch(const QFont& font) {
    return std::max(1.45 * QFontInfo(font).pixelSize(), QFontMetricsF(font).height());
}

} // namespace lexiform::qt
