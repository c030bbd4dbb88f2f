#include "platform/qt/panes/PaneFont.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>

namespace lexiform::qt {

QFont paneFont() {
    QFont font = QApplication::font();
    for (const QString& family :
         {QStringLiteral("Noto Sans"), QStringLiteral("Source Sans 3"), QStringLiteral("Inter")}) {
        if (!QFontDatabase::hasFamily(family)) continue;
        font.setFamilies({family});
        break;
    }
    font.setPointSize(12);
    font.setStyleHint(QFont::SansSerif);
    return font;
}

qreal linePitch(const QFont& font) {
    return std::max(1.45 * QFontInfo(font).pixelSize(), QFontMetricsF(font).height());
}

} // namespace lexiform::qt
