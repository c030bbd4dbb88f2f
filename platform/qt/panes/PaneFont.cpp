#include "platform/qt/panes/PaneFont.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

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

// In whole percents of the font's height, which is how a rich text of this look would state it.
qreal linePitch(const QFont& font) {
    const qreal height = QFontMetricsF(font).height();
    const qreal percent = std::max(100.0, std::round(145.0 * QFontInfo(font).pixelSize() / height));
    return height * percent / 100.0;
}

} // namespace lexiform::qt
