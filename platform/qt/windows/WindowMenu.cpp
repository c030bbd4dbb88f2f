#include "platform/qt/windows/WindowMenu.h"

namespace lexiform::qt {

WindowMenu::WindowMenu(const WindowList& windows, QWidget* parent)
    : QMenu(tr("&Window"), parent), windows_(windows) {
    connect(this, &QMenu::aboutToShow, this, &WindowMenu::fill);
    fill(); // a menu bar hides a menu without items on some desktops
}

void WindowMenu::fill() {
    clear();
    for (QWidget* window : windows_.windows())
        addWindow(window);
}

void WindowMenu::addWindow(QWidget* window) {
    // A file name may hold the mark of a mnemonic.
    const QString title = window->windowTitle().replace(u'&', QStringLiteral("&&"));
    QAction* action = addAction(title);
    action->setCheckable(true);
    action->setChecked(window == this->window() || window == parentWidget()->window());
    connect(action, &QAction::triggered, window, [window] { bringForward(*window); });
}

} // namespace lexiform::qt
