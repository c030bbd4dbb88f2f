#pragma once

#include "platform/qt/panes/PaneTextEdit.h"

#include <QObject>
#include <QPointer>

namespace lexiform::qt {

/// Knows which pane of a window a person works in: the one that had the keyboard last. Commands on "the
/// pane" go there, also while a menu or the find bar has the keyboard.
class PaneFocus : public QObject {
    Q_OBJECT

public:
    /// Until one of `window`'s panes has the keyboard it is `first`.
    PaneFocus(QWidget* window, PaneTextEdit* first);

    /// Null once the panes are gone.
    [[nodiscard]] PaneTextEdit* pane() const { return pane_; }

    /// Commands go to `pane` from now on, though the keyboard stays where it is.
    void turnTo(PaneTextEdit* pane);

signals:
    void changed();

private:
    void follow(QWidget* focused);

    QWidget* window_;
    QPointer<PaneTextEdit> pane_;
};

} // namespace lexiform::qt
