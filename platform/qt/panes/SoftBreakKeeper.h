#pragma once

#include <QTextBlock>
#include <QTextDocument>

namespace lexiform::qt {

/// Keeps the soft breaks of a document in order while a person edits it: breaks a line that has grown
/// too long and joins the pieces of one that has become short.
class SoftBreakKeeper {
public:
    explicit SoftBreakKeeper(QTextDocument* document) : document_(document) {}

    /// Notes where the document has changed. What the program puts in, with no history of edits, is
    /// in order already.
    void noteChange(int from, int added);
    void forgetChanges();

    /// Sets right what the noted changes have left, as part of the last step of the history. Not to be
    /// called after an undo: it would cut off the redo, and what comes back is in order.
    void mend();

private:
    void joinPieces(const QTextBlock& block);
    [[nodiscard]] QTextBlock breakSoftly(QTextBlock block);
    [[nodiscard]] QTextCursor editAt(int position);

    QTextDocument* document_;
    int first_ = -1;
    int last_ = -1;
    bool editing_ = false;
};

} // namespace lexiform::qt
