#include "platform/qt/windows/PlaceCommands.h"

namespace lexiform::qt {

PlaceCommands::PlaceCommands(PaneFocus& focus, QObject* parent)
    : QObject(parent), focus_(focus), goToTop_(new QAction(tr("&Go to Top"), this)),
      goToEnd_(new QAction(tr("Go to &End"), this)) {
    goToTop_->setShortcuts(QKeySequence::MoveToStartOfDocument);
    goToEnd_->setShortcuts(QKeySequence::MoveToEndOfDocument);
    connect(goToTop_, &QAction::triggered, this, [this] { goTo(QTextCursor::Start); });
    connect(goToEnd_, &QAction::triggered, this, [this] { goTo(QTextCursor::End); });
}

void PlaceCommands::goTo(QTextCursor::MoveOperation place) {
    if (!focus_.pane()) return;
    focus_.pane()->moveCursor(place);
    focus_.pane()->ensureCursorVisible();
}

} // namespace lexiform::qt
