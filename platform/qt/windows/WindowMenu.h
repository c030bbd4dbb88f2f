#pragma once

#include "platform/qt/windows/WindowList.h"

#include <QMenu>

namespace lexiform::qt {

/// Lists the open windows by title, ticks the one that it belongs to, and brings the chosen one forward.
class WindowMenu : public QMenu {
    Q_OBJECT

public:
    /// `windows` must outlive the menu.
    WindowMenu(const WindowList& windows, QWidget* parent);

private:
    void fill();
    void addWindow(QWidget* window);

    const WindowList& windows_;
};

} // namespace lexiform::qt
