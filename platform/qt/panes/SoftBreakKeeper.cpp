#include "platform/qt/panes/SoftBreakKeeper.h"

#include "platform/qt/panes/lineEndMarks.h"
#include "platform/qt/panes/softBreak.h"

#include <QTextCursor>

#include <algorithm>

namespace lexiform::qt {

namespace {

// Well below the longest piece, so that a key at the limit does not join what the next one breaks.
constexpr int longestJoined = 3000;

int lengthOf(const QTextBlock& block) {
    return block.length() - 1;
}

bool joinsNext(const QTextBlock& block) {
    const QTextBlock next = block.next();
    if (!next.isValid() || !isSoftBefore(next)) return false;
    return lengthOf(block) == 0 || lengthOf(next) == 0 || lengthOf(block) + lengthOf(next) <= longestJoined;
}

} // namespace

SoftBreakKeeper::SoftBreakKeeper(QTextDocument* document) : document_(document) {
    connect(document, &QTextDocument::contentsChange, this,
            [this](int from, int /*removed*/, int added) { noteChange(from, added); });
    connect(this, &SoftBreakKeeper::edited, this, &SoftBreakKeeper::mend, Qt::QueuedConnection);
}

// What the program puts in, with no history of edits, is in order already. The document is not to be
// edited while it tells of a change.
void SoftBreakKeeper::noteChange(int from, int added) {
    if (!document_->isUndoRedoEnabled()) return forgetChanges();
    if (first_ < 0) emit edited();
    first_ = first_ < 0 ? from : std::min(first_, from);
    last_ = std::max(last_, from + added);
}

void SoftBreakKeeper::forgetChanges() {
    first_ = last_ = -1;
}

// After an undo, what came back is in order, and an edit would cut off the redo.
void SoftBreakKeeper::mend() {
    if (document_->isRedoAvailable()) forgetChanges();
    if (first_ < 0) return;
    QTextCursor last(document_);
    last.setPosition(std::min(last_, document_->characterCount() - 1));
    QTextBlock block = document_->findBlock(first_);
    if (block.previous().isValid()) block = block.previous();
    for (; block.isValid() && block.position() <= last.position(); block = block.next()) {
        joinPieces(block);
        block = breakSoftly(block);
    }
    if (editing_) last.endEditBlock();
    editing_ = false;
    forgetChanges();
}

void SoftBreakKeeper::joinPieces(const QTextBlock& block) {
    while (joinsNext(block))
        editAt(block.next().position()).deletePreviousChar();
}

// Returns the last of the pieces.
QTextBlock SoftBreakKeeper::breakSoftly(QTextBlock block) {
    for (;;) {
        const QString text = block.text();
        const qsizetype end = softBreakIn(text, longestPiece);
        if (end == text.size()) return block;
        QTextCursor cursor = editAt(block.position() + static_cast<int>(end));
        insertSoftBreak(cursor);
        block = cursor.block();
    }
}

QTextCursor SoftBreakKeeper::editAt(int position) {
    QTextCursor cursor(document_);
    cursor.setPosition(position);
    if (!editing_) cursor.joinPreviousEditBlock();
    editing_ = true;
    return cursor;
}

} // namespace lexiform::qt
