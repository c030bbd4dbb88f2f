#pragma once

#include "platform/qt/windows/PaneFocus.h"

#include <QAction>

namespace lexiform::qt {

/// Goes to the top and the end of the pane that a person works in.
class PlaceCommands : public QObject {
    Q_OBJECT

public:
    /// `focus` must outlive the commands.
    PlaceCommands(PaneFocus& focus, QObject* parent);

    [[nodiscard]] QAction* goToTop() const { return goToTop_; }
    [[nodiscard]] QAction* goToEnd() const { return goToEnd_; }

private:
    void goTo(QTextCursor::MoveOperation place);

    PaneFocus& focus_;
    QAction* goToTop_;
    QAction* goToEnd_;
};

} // namespace lexiform::qt
