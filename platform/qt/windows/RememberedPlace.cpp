#include "platform/qt/windows/RememberedPlace.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace lexiform::qt {

namespace {

constexpr QPoint besideAnother{24, 24};

QList<QRect> availableScreens() {
    QList<QRect> places;
    for (const QScreen* screen : QGuiApplication::screens())
        places.append(screen->availableGeometry());
    return places;
}

int areaOf(const QRect& rect) {
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

// A second window on the very place of the first would hide it.
QPoint freePlace(QPoint wanted, const WindowList& windows) {
    const QList<QWidget*> others = windows.windows();
    const auto isTaken = [&](QPoint place) {
        return std::any_of(others.begin(), others.end(),
                           [&](const QWidget* other) { return other->pos() == place; });
    };
    while (isTaken(wanted))
        wanted += besideAnother;
    return wanted;
}

} // namespace

QRect broughtOnScreen(QRect frame, const QList<QRect>& screens) {
    if (screens.isEmpty()) return frame;
    const auto shows = [&](const QRect& screen) { return areaOf(screen & frame); };
    const QRect screen = *std::max_element(
        screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) { return shows(a) < shows(b); });
    frame.setSize(frame.size().boundedTo(screen.size()));
    frame.moveLeft(std::clamp(frame.left(), screen.left(), screen.right() + 1 - frame.width()));
    frame.moveTop(std::clamp(frame.top(), screen.top(), screen.bottom() + 1 - frame.height()));
    return frame;
}

RememberedPlace::RememberedPlace(QWidget& window, const QString& name, QSize first,
                                 const WindowServices& services)
    : QObject(&window), window_(window), name_(name), store_(services.store) {
    restore(first, services.windows);
    window.installEventFilter(this);
}

bool RememberedPlace::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Hide && !event->spontaneous()) remember();
    return false;
}

void RememberedPlace::restore(QSize first, const WindowList& windows) {
    // The frame is not there yet: its title bar is allowed for, or the window ends off the screen.
    const QSize titleBar(0, window_.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize size = store_.windowSize(name_);
    const std::optional<QPoint> place = store_.windowPlace(name_);
    const QRect wanted(place ? freePlace(*place, windows) : window_.screen()->availableGeometry().topLeft(),
                       (size.isValid() ? size : first) + titleBar);
    const QRect frame = broughtOnScreen(wanted, availableScreens());
    window_.resize(frame.size() - titleBar);
    if (place) window_.move(frame.topLeft());
    if (store_.windowIsMaximised(name_)) window_.setWindowState(Qt::WindowMaximized);
}

// A window that fills the screen keeps the place and size that it had before.
void RememberedPlace::remember() {
    if (window_.isFullScreen()) return;
    store_.setWindowIsMaximised(name_, window_.isMaximized());
    if (window_.isMaximized()) return;
    store_.setWindowSize(name_, window_.size());
    store_.setWindowPlace(name_, window_.pos());
}

} // namespace lexiform::qt
