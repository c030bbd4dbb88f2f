#pragma once

#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>

namespace lexiform::qt {

/// The commands on the pane that has the focus: undo, redo, cut, copy, paste, select all; a pane has it as
/// its context menu as well. Each is enabled only while it would do something.
class EditMenu : public QMenu {
    Q_OBJECT

public:
    /// Below these it has the `places`: what finds and goes to a place in a pane.
    EditMenu(const QList<QAction*>& places, QWidget* window);

    /// Opens as the context menu of `pane`, to which the keyboard then goes.
    void serveAsContextMenuOf(QPlainTextEdit& pane);

private:
    using Command = void (QPlainTextEdit::*)();

    QAction* addCommand(const QString& title, QKeySequence::StandardKey keys, Command command);
    void openOver(QPlainTextEdit& pane, QPoint point);
    void followFocus(QWidget* focused);
    void watch(QPlainTextEdit* pane);
    void refresh();
    void refreshPaste();

    QPointer<QPlainTextEdit> pane_;
    QAction* undo_;
    QAction* redo_;
    QAction* cut_;
    QAction* copy_;
    QAction* paste_;
    QAction* selectAll_;
};

} // namespace lexiform::qt
