#pragma once

#include <QObject>
#include <QTextBlock>
#include <QTextDocument>

namespace lexiform::qt {

/// Keeps the soft breaks of a document in order while a person edits it, by whatever key or command:
/// breaks a line that has grown too long and joins the pieces of one that has become short. This comes
/// soon after each edit, with the next events, as part of the same step of the history.
class SoftBreakKeeper : public QObject {
    Q_OBJECT

public:
    explicit SoftBreakKeeper(QTextDocument* document);

signals:
    /// The first edit since the last mending.
    void edited();

private:
    void noteChange(int from, int added);
    void forgetChanges();
    void mend();
    void joinPieces(const QTextBlock& block);
    [[nodiscard]] QTextBlock breakSoftly(QTextBlock block);
    [[nodiscard]] QTextCursor editAt(int position);

    QTextDocument* document_;
    int first_ = -1;
    int last_ = -1;
    bool editing_ = false;
};

} // namespace lexiform::qt
