#include "platform/qt/panes/InputTextEdit.h"

#include "document/html/HtmlReader.h"
#include "platform/qt/panes/TextBlocks.h"
#include "platform/qt/panes/lineEndMarks.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

namespace lexiform::qt {

namespace {

bool movesFocus(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) &&
           event.modifiers().testFlag(Qt::ControlModifier);
}

bool endsALine(const QKeyEvent& event) {
    return event.matches(QKeySequence::InsertParagraphSeparator) ||
           event.matches(QKeySequence::InsertLineSeparator);
}

bool deletesForwards(const QKeyEvent& event) {
    return event.matches(QKeySequence::Delete) || event.matches(QKeySequence::DeleteEndOfWord);
}

// Some programs copy a formatted text without its plain one.
QString plainTextIn(const QMimeData& source) {
    if (source.hasText()) return source.text();
    const auto text = document::readHtml(source.html().toStdString());
    QString plain = text.succeeded() ? QString::fromStdString(text.value()) : QString();
    // What is copied ends with its last word, where a page ends with a line.
    if (plain.endsWith(u'\n')) plain.chop(1);
    return plain;
}

// Pasted lines end as the lines do among which they come.
TextBlocks withOwnLineEnds(TextBlocks blocks, LineEnd own) {
    for (LineEnd& end : blocks.ends)
        if (end == LineEnd::lf || end == LineEnd::crlf || end == LineEnd::cr ||
            end == LineEnd::paragraphSeparator)
            end = own;
    return blocks;
}

} // namespace

InputTextEdit::InputTextEdit(QWidget* parent) : PaneTextEdit(parent), softBreaks_(document()) {
    setTextInteractionFlags(Qt::TextEditorInteraction);
    setTabChangesFocus(false);
}

void InputTextEdit::setHint(const QString& hint) {
    hint_ = hint;
    viewport()->update();
}

// The placeholder that the editor has of its own stands outside the margins of a pane's text.
void InputTextEdit::paintEvent(QPaintEvent* event) {
    PaneTextEdit::paintEvent(event);
    const QTextBlock first = document()->firstBlock();
    if (!document()->isEmpty() || !first.layout()->preeditAreaText().isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().marginsRemoved(textMargins), Qt::TextWordWrap, hint_);
}

void InputTextEdit::keyPressEvent(QKeyEvent* event) {
    if (movesFocus(*event)) {
        // The editor keeps the keyboard while its tab key writes: any other widget lets it go.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QWidget::focusNextPrevChild(event->key() == Qt::Key_Tab);
        return;
    }
    if (endsALine(*event)) {
        typeLineEnd();
    } else {
        stepOverSoftBreak(*event);
        PaneTextEdit::keyPressEvent(event);
    }
}

void InputTextEdit::typeLineEnd() {
    QTextCursor cursor = textCursor();
    insertLineEnd(cursor);
    setTextCursor(cursor);
}

// Deleting at a soft break takes the character beyond it, for the break itself is none.
void InputTextEdit::stepOverSoftBreak(const QKeyEvent& event) {
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection()) return;
    const QTextBlock next = cursor.block().next();
    if (event.key() == Qt::Key_Backspace && cursor.atBlockStart() && isSoftBefore(cursor.block()))
        cursor.setPosition(cursor.position() - 1);
    else if (deletesForwards(event) && cursor.atBlockEnd() && next.isValid() && isSoftBefore(next))
        cursor.setPosition(next.position());
    else
        return;
    setTextCursor(cursor);
}

bool InputTextEdit::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() || source->hasHtml();
}

void InputTextEdit::insertFromMimeData(const QMimeData* source) {
    const std::string pasted = plainTextIn(*source).toStdString();
    // A picture of a page must not take the place of what is selected.
    if (pasted.empty()) return;
    QTextCursor cursor = textCursor();
    insertBlocks(cursor, withOwnLineEnds(cutIntoBlocks(pasted), ownLineEnd()), ownLineEnd());
    setTextCursor(cursor);
}

} // namespace lexiform::qt
