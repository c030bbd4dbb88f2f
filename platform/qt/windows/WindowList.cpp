#include "platform/qt/windows/WindowList.h"

namespace lexiform::qt {

void WindowList::add(QWidget* window) {
    windows_.removeIf([](const QPointer<QWidget>& known) { return known.isNull(); });
    windows_.append(window);
}

QList<QWidget*> WindowList::windows() const {
    QList<QWidget*> shown;
    for (const QPointer<QWidget>& window : windows_)
        if (window && window->isVisible()) shown.append(window);
    return shown;
}

void bringForward(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace lexiform::qt
