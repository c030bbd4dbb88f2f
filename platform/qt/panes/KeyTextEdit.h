#pragma once

#include "platform/qt/panes/PaneTextEdit.h"
#include "platform/qt/theme/ClassMarks.h"

namespace lexiform::qt {

/// The colour key: lines with an empty line between each two, and beside line k a swatch of class
/// colour k. An empty line has no swatch, so that an empty key shows nothing at all. A line is
/// wrapped between its values.
///
/// In the place of a caret, the line that the keyboard or the last click is on has a tint while the key has
/// the keyboard; the keys up and down go from one such line to the next.
class KeyTextEdit : public PaneTextEdit {
    Q_OBJECT

public:
    static constexpr QMargins keyMargins{44, 4, 8, 8};

    explicit KeyTextEdit(QWidget* parent = nullptr);

    /// What the key says of a colour: its line, empty for a colour without one.
    [[nodiscard]] QString meaningOf(Colour colour) const;
    /// How the swatches and their lines are shown.
    void setClassMarks(const ClassMarks& marks);

signals:
    /// A line that has a swatch was clicked, or Enter pressed in it.
    void chosen(Colour colour);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void choose(const QTextCursor& cursor);
    void step(int lines);
    void paintCurrentLine(QPainter& painter) const;
    void paintSwatch(QPainter& painter, int line, const QTextBlock& block) const;
    void paintClassLines();

    ClassMarks marks_;
};

} // namespace lexiform::qt
