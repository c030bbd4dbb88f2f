#include "platform/qt/panes/PaneFrame.h"

#include "platform/qt/theme/Appearance.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace lexiform::qt {

namespace {

constexpr int ringWidth = 2;
constexpr qreal radius = 7;
constexpr int headingHeight = 40;
constexpr int headingLeft = 24;
// Headings sit nearer to their text than to the frame.
constexpr int headingDrop = 4;

QFont headingFont(QFont font) {
    font.setPointSizeF(font.pointSizeF() - 1);
    font.setWeight(QFont::DemiBold);
    return font;
}

} // namespace

PaneFrame::PaneFrame(const QString& heading, QWidget* pane, QWidget* parent)
    : QFrame(parent), heading_(heading), pane_(pane) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(ringWidth, headingHeight, ringWidth, ringWidth);
    layout->addWidget(pane_);
    setFocusProxy(pane_);
    pane_->installEventFilter(this);
    setAccessibleName(heading_);
    pane_->setAccessibleName(heading_);
}

void PaneFrame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintBox(painter);
    paintHeading(painter);
}

void PaneFrame::paintBox(QPainter& painter) const {
    const Surfaces& surfaces = surfacesOf(appearanceOf(palette()));
    const bool focused = pane_->hasFocus();
    const qreal width = focused ? ringWidth : 1;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(focused ? surfaces.focus : surfaces.paneBorder, width));
    painter.setBrush(surfaces.pane);
    const qreal inset = width / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
}

void PaneFrame::paintHeading(QPainter& painter) const {
    painter.setFont(headingFont(font()));
    painter.setPen(surfacesOf(appearanceOf(palette())).secondaryText);
    const QRect strip(headingLeft, headingDrop, width() - headingLeft - ringWidth, headingHeight);
    const QString shown = painter.fontMetrics().elidedText(heading_, Qt::ElideRight, strip.width());
    painter.drawText(strip, Qt::AlignLeft | Qt::AlignVCenter, shown);
}

void PaneFrame::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) update();
}

bool PaneFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == pane_ && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) update();
    return QFrame::eventFilter(watched, event);
}

} // namespace lexiform::qt
