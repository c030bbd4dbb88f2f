#pragma once

#include "platform/qt/panes/LineEnd.h"

#include <QString>
#include <QTextDocument>

#include <vector>

namespace lexiform::qt {

/// The exact text of a document in one piece, soft breaks left out, with the places of its characters:
/// what is searched in, since a word may lie across a soft break. It does not follow later edits.
class SearchedText {
public:
    /// `own` is the document's own line end.
    SearchedText(const QTextDocument& document, LineEnd own);

    [[nodiscard]] const QString& text() const { return text_; }

    /// The position in the document of the character at `offset`, a number of UTF-16 units no greater than
    /// the text's length. A place inside a line end is the end of its line.
    [[nodiscard]] int positionOf(qsizetype offset) const;
    /// The reverse; a position past the end counts as the end.
    [[nodiscard]] qsizetype offsetOf(int position) const;

private:
    /// Where a block begins in the document and in the text.
    struct Start {
        int position;
        qsizetype offset;
    };

    std::vector<Start> starts_;
    std::vector<int> lengths_; ///< of the blocks, without their ends
    QString text_;
};

} // namespace lexiform::qt
