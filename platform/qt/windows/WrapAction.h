#pragma once

#include "platform/qt/panes/PaneTextEdit.h"
#include "platform/qt/windows/StateStore.h"

#include <QAction>

namespace lexiform::qt {

/// Wraps the lines of one pane or not, and remembers which under a name for the windows to come.
class WrapAction : public QAction {
    Q_OBJECT

public:
    /// Gives the pane what is remembered at once; `store` and `pane` must outlive the action.
    WrapAction(const QString& title, PaneTextEdit& pane, const QString& name, StateStore& store,
               QObject* parent);
};

} // namespace lexiform::qt
