#include "platform/qt/windows/FullScreenAction.h"

#include <QEvent>

namespace lexiform::qt {

FullScreenAction::FullScreenAction(QWidget& window) : QAction(&window), window_(window) {
    setShortcut(Qt::Key_F11);
    connect(this, &QAction::triggered, this,
            [this] { window_.setWindowState(window_.windowState() ^ Qt::WindowFullScreen); });
    window.installEventFilter(this); // the desktop may change the state too
    retitle();
}

bool FullScreenAction::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) retitle();
    return false;
}

void FullScreenAction::retitle() {
    setText(window_.isFullScreen() ? tr("Leave &Full Screen") : tr("Enter &Full Screen"));
}

} // namespace lexiform::qt
