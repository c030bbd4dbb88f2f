#include "platform/qt/sidewindows/ColourSwatch.h"

#include <QPainter>

namespace lexiform::qt {

namespace {

constexpr int swatchSize = 18;
constexpr qreal swatchRadius = 4;

} // namespace

ColourSwatch::ColourSwatch(Colour colour, QWidget* parent) : QWidget(parent), colour_(colour) {
    setFixedSize(swatchSize, swatchSize);
}

void ColourSwatch::setClassPalette(ClassPalette palette) {
    classPalette_ = palette;
    update();
}

void ColourSwatch::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(valueOf(colour_, appearanceOf(palette()), classPalette_));
    painter.drawRoundedRect(rect(), swatchRadius, swatchRadius);
}

} // namespace lexiform::qt
