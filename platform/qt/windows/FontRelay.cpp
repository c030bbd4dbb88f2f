#include "platform/qt/windows/FontRelay.h"

#include <QCoreApplication>
#include <QEvent>

namespace lexiform::qt {

FontRelay::FontRelay(QWidget& window) : QObject(&window) {
    window.installEventFilter(this);
}

bool FontRelay::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ApplicationFontChange) return false;
    for (QWidget* widget : watched->findChildren<QWidget*>()) {
        QEvent change(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(widget, &change);
    }
    return false;
}

} // namespace lexiform::qt
