#include "platform/qt/windows/BusyLine.h"

#include "platform/qt/theme/Appearance.h"

#include <QPainter>
#include <QTimerEvent>

#include <cmath>

namespace lexiform::qt {

namespace {

constexpr int lineHeight = 2;
constexpr int stepMilliseconds = 30;
constexpr double stepOfRound = 0.02;
constexpr double pieceOfLine = 0.25;

} // namespace

BusyLine::BusyLine(QWidget* parent) : QProgressBar(parent) {
    setRange(0, 0);
    setTextVisible(false);
    setFixedHeight(lineHeight);
    setAccessibleName(tr("Busy"));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

void BusyLine::paintEvent(QPaintEvent* /*event*/) {
    const Surfaces& surfaces = surfacesOf(appearanceOf(palette()));
    const double piece = width() * pieceOfLine;
    const double left = phase_ * (width() + piece) - piece;
    QPainter painter(this);
    painter.fillRect(rect(), surfaces.disabledBorder);
    painter.fillRect(QRectF(left, 0, piece, height()), surfaces.focus);
}

void BusyLine::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId()) return QProgressBar::timerEvent(event);
    phase_ = std::fmod(phase_ + stepOfRound, 1.0);
    update();
}

void BusyLine::showEvent(QShowEvent* event) {
    QProgressBar::showEvent(event);
    timer_.start(stepMilliseconds, this);
}

void BusyLine::hideEvent(QHideEvent* event) {
    timer_.stop();
    QProgressBar::hideEvent(event);
}

} // namespace lexiform::qt
