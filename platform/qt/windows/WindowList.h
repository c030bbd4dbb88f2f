#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

namespace lexiform::qt {

/// The windows that the Window menu lists, in the order of opening. It owns none of them.
class WindowList {
public:
    void add(QWidget* window);

    /// Those that are on screen.
    [[nodiscard]] QList<QWidget*> windows() const;

private:
    QList<QPointer<QWidget>> windows_;
};

/// Shows a window, restores it when it is minimised, and puts it before the others.
void bringForward(QWidget& window);

} // namespace lexiform::qt
