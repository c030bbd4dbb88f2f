#include "platform/qt/sidewindows/ColourChip.h"

#include "platform/qt/panes/PaneFont.h"

#include <QPainter>

namespace lexiform::qt {

namespace {

constexpr QSize chipSize{40, 28};
constexpr qreal chipRadius = 6;
constexpr qreal half = 0.5;

} // namespace

ColourChip::ColourChip(Colour colour, Appearance appearance, QWidget* parent)
    : QWidget(parent), colour_(colour), appearance_(appearance) {
    setFixedSize(chipSize);
    setFont(paneFont());
}

void ColourChip::setClassPalette(ClassPalette palette) {
    classPalette_ = palette;
    update();
}

// Each chip has an outline where its pane would melt into the sheet round it.
void ColourChip::paintEvent(QPaintEvent* /*event*/) {
    const Surfaces& own = surfacesOf(appearance_);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(appearance_ == Appearance::light ? own.paneBorder : own.disabledBorder);
    painter.setBrush(own.pane);
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), chipRadius, chipRadius);
    painter.setPen(valueOf(colour_, appearance_, classPalette_));
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Aa"));
}

} // namespace lexiform::qt
