#include "platform/qt/windows/ScreenAppearance.h"

#include <QEvent>

#include <utility>

namespace lexiform::qt {

ScreenAppearance::ScreenAppearance(QWidget& window, std::function<void()> appeared)
    : QObject(&window), appeared_(std::move(appeared)) {
    window.installEventFilter(this);
}

// The window system's own showing and hiding (minimising, another desktop) is spontaneous. A window
// that is shown while it is on screen, as some changes of its state do, has not come anew.
bool ScreenAppearance::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->spontaneous()) return false;
    if (event->type() == QEvent::Hide) onScreen_ = false;
    if (event->type() == QEvent::Show && !std::exchange(onScreen_, true)) appeared_();
    return false;
}

} // namespace lexiform::qt
