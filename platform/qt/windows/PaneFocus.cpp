#include "platform/qt/windows/PaneFocus.h"

#include <QApplication>

namespace lexiform::qt {

PaneFocus::PaneFocus(QWidget* window, PaneTextEdit* first) : QObject(window), window_(window), pane_(first) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) { follow(now); });
}

void PaneFocus::follow(QWidget* focused) {
    auto* pane = qobject_cast<PaneTextEdit*>(focused);
    if (pane && pane->window() == window_) turnTo(pane);
}

void PaneFocus::turnTo(PaneTextEdit* pane) {
    if (pane == pane_) return;
    pane_ = pane;
    emit changed();
}

} // namespace lexiform::qt
