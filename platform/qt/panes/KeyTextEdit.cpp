#include "platform/qt/panes/KeyTextEdit.h"

#include "platform/qt/panes/PaneDocumentLayout.h"
#include "platform/qt/panes/classLines.h"
#include "platform/qt/panes/commaBreaks.h"
#include "platform/qt/theme/Appearance.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QTextBlock>

#include <cmath>

namespace lexiform::qt {

namespace {

constexpr int swatchLeft = 22;
constexpr int swatchSize = 12;
constexpr qreal swatchRadius = 3;
constexpr int tintLeft = 14;
constexpr int tintRight = 2;
constexpr int tintAround = 2;
constexpr qreal tintRadius = 4;
constexpr int classColours = static_cast<int>(Colour::text);

bool hasSwatch(const QTextBlock& block) {
    return block.blockNumber() % 2 == 0 && block.blockNumber() / 2 < classColours && block.length() > 1;
}

} // namespace

KeyTextEdit::KeyTextEdit(QWidget* parent) : PaneTextEdit(keyMargins, parent) {
    paneLayout().setLineBreaking(breakAfterCommas);
    hideCaret();
    connect(this, &QPlainTextEdit::cursorPositionChanged, viewport(), qOverload<>(&QWidget::update));
    connect(this, &QPlainTextEdit::selectionChanged, viewport(), qOverload<>(&QWidget::update));
}

void KeyTextEdit::setClassMarks(const ClassMarks& marks) {
    marks_ = marks;
    viewport()->update();
}

void KeyTextEdit::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paintCurrentLine(painter);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        if (hasSwatch(block)) paintSwatch(painter, block.blockNumber() / 2, block);
    painter.end();
    PaneTextEdit::paintEvent(event);
    if (marks_.underlined) paintClassLines();
}

// The words of the key stay in the text colour, with the lines that words of their class have.
void KeyTextEdit::paintClassLines() {
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    ClassLinePainter lines(painter, font());
    for (int line = 0; line < classColours && 2 * line < document()->blockCount(); ++line) {
        const QTextBlock block = document()->findBlockByNumber(2 * line);
        lines.paint(block, blockBoundingGeometry(block).translated(contentOffset()).top(), 0, block.length(),
                    static_cast<Colour>(line), palette().color(QPalette::Text));
    }
}

QString KeyTextEdit::meaningOf(Colour colour) const {
    const int line = static_cast<int>(colour);
    return line < classColours ? document()->findBlockByNumber(2 * line).text() : QString();
}

void KeyTextEdit::mouseReleaseEvent(QMouseEvent* event) {
    PaneTextEdit::mouseReleaseEvent(event);
    // Whoever drags selects text of the key.
    if (event->button() == Qt::LeftButton && !textCursor().hasSelection()) choose(textCursor());
}

void KeyTextEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        choose(textCursor());
    else if (event->matches(QKeySequence::MoveToNextLine))
        step(1);
    else if (event->matches(QKeySequence::MoveToPreviousLine))
        step(-1);
    else
        PaneTextEdit::keyPressEvent(event);
}

void KeyTextEdit::focusInEvent(QFocusEvent* event) {
    PaneTextEdit::focusInEvent(event);
    viewport()->update();
}

void KeyTextEdit::focusOutEvent(QFocusEvent* event) {
    PaneTextEdit::focusOutEvent(event);
    viewport()->update();
}

void KeyTextEdit::choose(const QTextCursor& cursor) {
    if (hasSwatch(cursor.block())) emit chosen(static_cast<Colour>(cursor.blockNumber() / 2));
}

void KeyTextEdit::step(int lines) {
    QTextBlock block = textCursor().block();
    do
        block = lines > 0 ? block.next() : block.previous();
    while (block.isValid() && !hasSwatch(block));
    if (block.isValid()) setTextCursor(QTextCursor(block));
}

// A selection shows by itself where it is, in the same tint.
void KeyTextEdit::paintCurrentLine(QPainter& painter) const {
    const QTextBlock block = textCursor().block();
    if (!hasFocus() || textCursor().hasSelection() || !hasSwatch(block)) return;
    const qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    const QTextLine first = block.layout()->lineAt(0);
    const QTextLine last = block.layout()->lineAt(block.layout()->lineCount() - 1);
    const QRectF line(tintLeft, top + first.y() - tintAround, viewport()->width() - tintLeft - tintRight,
                      last.y() + last.height() - first.y() + 2 * tintAround);
    painter.setBrush(surfacesOf(appearanceOf(palette())).selection);
    painter.drawRoundedRect(line, tintRadius, tintRadius);
}

// Centred on the middle of a capital in the block's first visual line.
void KeyTextEdit::paintSwatch(QPainter& painter, int line, const QTextBlock& block) const {
    const qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    const QTextLine first = block.layout()->lineAt(0);
    const qreal middle = top + first.y() + first.ascent() - QFontMetricsF(font()).capHeight() / 2;
    painter.setBrush(valueOf(static_cast<Colour>(line), appearanceOf(palette()), marks_.palette));
    painter.drawRoundedRect(QRectF(swatchLeft, std::round(middle - swatchSize / 2.0), swatchSize, swatchSize),
                            swatchRadius, swatchRadius);
}

} // namespace lexiform::qt
