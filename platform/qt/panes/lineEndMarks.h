#pragma once

#include "platform/qt/panes/LineEnd.h"
#include "platform/qt/panes/TextBlocks.h"

#include <QHash>
#include <QString>
#include <QTextBlock>
#include <QTextCursor>

namespace lexiform::qt {

// The line ends of a document. A block end that is not the text's own line end carries a mark in its
// character format, which belongs to the separator itself: deleting, moving, undoing and redoing it
// keep or drop the right mark, where a mark on a block would pass to its neighbour when two are
// joined. An end without a mark is the text's own, so that every new one is right by itself.

/// The line end in front of `block`, which is not the first one.
[[nodiscard]] LineEnd lineEndBefore(const QTextBlock& block, LineEnd own);

/// Reads the line ends of many blocks in turn: there are few formats among them.
class MarkReader {
public:
    explicit MarkReader(LineEnd own) : own_(own) {}

    /// The line end in front of `block`, which is not the first one.
    [[nodiscard]] LineEnd lineEndBefore(const QTextBlock& block);

private:
    LineEnd own_;
    QHash<int, LineEnd> ends_;
};

[[nodiscard]] bool isSoftBefore(const QTextBlock& block);

/// Inserts the blocks at the cursor, in place of its selection.
void insertBlocks(QTextCursor& cursor, const TextBlocks& blocks, LineEnd own);

/// Ends the block at the cursor with the text's own line end: what follows becomes a block of its own.
void insertLineEnd(QTextCursor& cursor);
void insertSoftBreak(QTextCursor& cursor);

/// `raw`, characters of the document from somewhere in `block` on, with the true line ends in the
/// place of its U+2029.
[[nodiscard]] QString withTrueLineEnds(const QString& raw, QTextBlock block, LineEnd own);

} // namespace lexiform::qt
