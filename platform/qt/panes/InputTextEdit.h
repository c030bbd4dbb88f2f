#pragma once

#include "platform/qt/panes/PaneTextEdit.h"
#include "platform/qt/panes/SoftBreakKeeper.h"

namespace lexiform::qt {

/// The pane into which a person types or pastes: plain text, undo and redo, a tab key that writes
/// a tab (Ctrl+Tab moves on). A new line, typed or pasted, takes the text's own line end.
class InputTextEdit : public PaneTextEdit {
    Q_OBJECT

public:
    explicit InputTextEdit(QWidget* parent = nullptr);

    /// What the empty pane says may be done with it.
    void setHint(const QString& hint);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void typeLineEnd();
    void stepOverSoftBreak(const QKeyEvent& event);

    SoftBreakKeeper softBreaks_;
    QString hint_;
};

} // namespace lexiform::qt
