#include "platform/qt/windows/WrapAction.h"

namespace lexiform::qt {

WrapAction::WrapAction(const QString& title, PaneTextEdit& pane, const QString& name, StateStore& store,
                       QObject* parent)
    : QAction(title, parent) {
    setCheckable(true);
    setChecked(store.wrapsLines(name));
    pane.setWrapsLines(isChecked());
    connect(this, &QAction::toggled, &pane, [&pane, name, &store](bool wraps) {
        pane.setWrapsLines(wraps);
        store.setWrapsLines(name, wraps);
    });
}

} // namespace lexiform::qt
