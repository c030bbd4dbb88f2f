#include "platform/qt/sidewindows/Sheet.h"

#include "platform/qt/theme/Appearance.h"

#include <QPainter>

namespace lexiform::qt {

void Sheet::paintEvent(QPaintEvent* /*event*/) {
    constexpr qreal radius = 7;
    constexpr qreal half = 0.5;
    const Surfaces& surfaces = surfacesOf(appearanceOf(palette()));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(surfaces.paneBorder);
    painter.setBrush(surfaces.pane);
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), radius - half, radius - half);
}

} // namespace lexiform::qt
