#pragma once

#include "platform/qt/windows/WindowServices.h"

#include <QList>
#include <QRect>
#include <QWidget>

namespace lexiform::qt {

/// Gives a window the place, the size and the maximised state that the last one of its name had, and
/// remembers them when it leaves the screen.
class RememberedPlace : public QObject {
    Q_OBJECT

public:
    /// `window` owns this object and is not shown yet. Where nothing is remembered it gets the size `first`,
    /// and the desktop finds a place for it.
    RememberedPlace(QWidget& window, const QString& name, QSize first, const WindowServices& services);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restore(QSize first, const WindowList& windows);
    void remember();

    QWidget& window_;
    QString name_;
    StateStore& store_;
};

/// `frame` moved and, if need be, made smaller, so that it lies within the one of `screens` that shows most
/// of it; within the first where none shows any. There must be a screen.
[[nodiscard]] QRect broughtOnScreen(QRect frame, const QList<QRect>& screens);

} // namespace lexiform::qt
