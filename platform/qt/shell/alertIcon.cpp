#include "platform/qt/shell/alertIcon.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>

namespace lexiform::qt {

namespace {

constexpr int iconSize = 48;

void paintWarningSign(QPainter& painter, const QPalette& palette) {
    const QPolygonF triangle = {{36, 25}, {46.5, 45.5}, {25.5, 45.5}};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.color(QPalette::Window), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolygon(triangle);
    const QColor ink = palette.color(QPalette::WindowText);
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(ink);
    painter.drawPolygon(triangle);
    painter.setPen(QPen(palette.color(QPalette::Window), 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(36, 33), QPointF(36, 38));
    painter.drawPoint(QPointF(36, 42));
}

} // namespace

QPixmap alertIcon(Alert::Style style, const QPalette& palette, qreal pixelRatio) {
    QPixmap icon = QApplication::windowIcon().pixmap(QSize(iconSize, iconSize), pixelRatio);
    if (icon.isNull() || style != Alert::Style::critical) return icon;
    QPainter painter(&icon);
    paintWarningSign(painter, palette);
    return icon;
}

} // namespace lexiform::qt
