#include "platform/qt/panes/PaneScrollBar.h"

namespace lexiform::qt {

PaneScrollBar::PaneScrollBar(int width, QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
    setFixedWidth(width);
    // Without a range the style shows the whole bar as its handle.
    connect(this, &QScrollBar::rangeChanged, this, qOverload<>(&QScrollBar::update));
}

QSize PaneScrollBar::sizeHint() const {
    return {minimumWidth(), QScrollBar::sizeHint().height()};
}

void PaneScrollBar::paintEvent(QPaintEvent* event) {
    if (minimum() < maximum()) QScrollBar::paintEvent(event);
}

} // namespace lexiform::qt
