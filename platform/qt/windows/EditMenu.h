#pragma once

#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>

namespace lexiform::qt {

/// The commands on the pane that has the focus: undo, redo, cut, copy, paste, select all. Each is
/// enabled only while it would do something.
class EditMenu : public QMenu {
    Q_OBJECT

public:
    explicit EditMenu(QWidget* window);

private:
    using Command = void (QPlainTextEdit::*)();

    QAction* addCommand(const QString& title, QKeySequence::StandardKey keys, Command command);
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
