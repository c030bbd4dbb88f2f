#include "platform/qt/windows/EditMenu.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>

namespace lexiform::qt {

EditMenu::EditMenu(const QList<QAction*>& places, QWidget* window) : QMenu(tr("&Edit"), window) {
    undo_ = addCommand(tr("&Undo"), QKeySequence::Undo, &QPlainTextEdit::undo);
    redo_ = addCommand(tr("&Redo"), QKeySequence::Redo, &QPlainTextEdit::redo);
    addSeparator();
    cut_ = addCommand(tr("Cu&t"), QKeySequence::Cut, &QPlainTextEdit::cut);
    copy_ = addCommand(tr("&Copy"), QKeySequence::Copy, &QPlainTextEdit::copy);
    paste_ = addCommand(tr("&Paste"), QKeySequence::Paste, &QPlainTextEdit::paste);
    addSeparator();
    selectAll_ = addCommand(tr("Select &All"), QKeySequence::SelectAll, &QPlainTextEdit::selectAll);
    addSeparator();
    addActions(places);

    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* now) { followFocus(now); });
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &EditMenu::refreshPaste);
    refresh();
}

QAction* EditMenu::addCommand(const QString& title, QKeySequence::StandardKey keys, Command command) {
    QAction* action = addAction(title);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, [this, command] {
        if (pane_) (pane_->*command)();
    });
    return action;
}

void EditMenu::serveAsContextMenuOf(QPlainTextEdit& pane) {
    pane.setContextMenuPolicy(Qt::CustomContextMenu);
    // Not this menu is the receiver: it drops its connections to a pane that loses the focus.
    connect(&pane, &QWidget::customContextMenuRequested, &pane,
            [this, &pane](QPoint point) { openOver(pane, pane.viewport()->mapToGlobal(point)); });
}

// The menu bar keeps the menu itself, which can be open in one place only.
void EditMenu::openOver(QPlainTextEdit& pane, QPoint point) {
    pane.setFocus(Qt::PopupFocusReason);
    watch(&pane);
    auto* menu = new QMenu(&pane);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    menu->popup(point);
}

// A menu that opens and a window that loses the desktop's attention leave the commands to the pane
// that had the focus.
void EditMenu::followFocus(QWidget* focused) {
    const bool inMenu = qobject_cast<QMenuBar*>(focused) || qobject_cast<QMenu*>(focused);
    if (!focused || inMenu || focused->window() != parentWidget()->window()) return;
    watch(qobject_cast<QPlainTextEdit*>(focused));
}

void EditMenu::watch(QPlainTextEdit* pane) {
    if (pane_) pane_->disconnect(this);
    pane_ = pane;
    if (pane) {
        connect(pane, &QPlainTextEdit::undoAvailable, this, &EditMenu::refresh);
        connect(pane, &QPlainTextEdit::redoAvailable, this, &EditMenu::refresh);
        connect(pane, &QPlainTextEdit::copyAvailable, this, &EditMenu::refresh);
        connect(pane, &QPlainTextEdit::textChanged, this, &EditMenu::refresh);
    }
    refresh();
}

void EditMenu::refresh() {
    const bool writable = pane_ && !pane_->isReadOnly();
    const bool selected = pane_ && pane_->textCursor().hasSelection();
    undo_->setEnabled(writable && pane_->document()->isUndoAvailable());
    redo_->setEnabled(writable && pane_->document()->isRedoAvailable());
    cut_->setEnabled(writable && selected);
    copy_->setEnabled(selected);
    selectAll_->setEnabled(pane_ && !pane_->document()->isEmpty());
    refreshPaste();
}

void EditMenu::refreshPaste() {
    paste_->setEnabled(pane_ && pane_->canPaste());
}

} // namespace lexiform::qt
