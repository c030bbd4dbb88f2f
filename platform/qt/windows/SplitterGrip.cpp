#include "platform/qt/windows/SplitterGrip.h"

#include "platform/qt/theme/Appearance.h"

#include <QPainter>

namespace lexiform::qt {

namespace {

constexpr int gripWidth = 2;
constexpr int restLength = 32;
constexpr int pointedLength = 64;

} // namespace

SplitterGrip::SplitterGrip(QSplitter* splitter) : QSplitterHandle(Qt::Horizontal, splitter) {
    setAttribute(Qt::WA_Hover); // repaints when the pointer comes and goes
}

void SplitterGrip::paintEvent(QPaintEvent* /*event*/) {
    const Surfaces& surfaces = surfacesOf(appearanceOf(palette()));
    const bool pointed = underMouse();
    const int length = pointed ? pointedLength : restLength;
    const QRectF grip((width() - gripWidth) / 2.0, (height() - length) / 2.0, gripWidth, length);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(pointed ? surfaces.focus : surfaces.handle);
    painter.drawRoundedRect(grip, 1, 1);
}

} // namespace lexiform::qt
