#include "platform/qt/panes/lineEndMarks.h"

#include <QTextDocument>

namespace lexiform::qt {

namespace {

constexpr int lineEndProperty = QTextFormat::UserProperty + 1;

QTextCharFormat markOf(LineEnd end) {
    QTextCharFormat format;
    format.setProperty(lineEndProperty, static_cast<int>(end));
    return format;
}

LineEnd lineEndIn(const QTextFormat& format, LineEnd own) {
    if (!format.hasProperty(lineEndProperty)) return own;
    return static_cast<LineEnd>(format.intProperty(lineEndProperty));
}

} // namespace

LineEnd MarkReader::lineEndBefore(const QTextBlock& block) {
    const int index = block.charFormatIndex();
    const auto known = ends_.constFind(index);
    if (known != ends_.constEnd()) return *known;
    return *ends_.insert(index, lineEndIn(block.charFormat(), own_));
}

LineEnd lineEndBefore(const QTextBlock& block, LineEnd own) {
    return lineEndIn(block.charFormat(), own);
}

bool isSoftBefore(const QTextBlock& block) {
    return lineEndIn(block.charFormat(), LineEnd::lf) == LineEnd::soft;
}

// A format is given each time: else the block end takes over that of the character before it.
void insertLineEnd(QTextCursor& cursor) {
    cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
}

void insertSoftBreak(QTextCursor& cursor) {
    cursor.insertBlock(QTextBlockFormat(), markOf(LineEnd::soft));
}

void insertBlocks(QTextCursor& cursor, const TextBlocks& blocks, LineEnd own) {
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    // The editor makes block ends without a mark of the U+2029 in what it inserts, so that only the
    // others need a step of their own.
    qsizetype pending = 0;
    qsizetype at = 0;
    for (const LineEnd end : blocks.ends) {
        at = blocks.text.indexOf(QChar::ParagraphSeparator, at);
        if (end != own) {
            cursor.insertText(blocks.text.sliced(pending, at - pending), QTextCharFormat());
            cursor.insertBlock(QTextBlockFormat(), markOf(end));
            pending = at + 1;
        }
        ++at;
    }
    cursor.insertText(pending == 0 ? blocks.text : blocks.text.sliced(pending), QTextCharFormat());
    cursor.endEditBlock();
}

QString withTrueLineEnds(const QString& raw, QTextBlock block, LineEnd own) {
    QString text;
    text.reserve(raw.size() + raw.size() / 16);
    MarkReader marks(own);
    qsizetype start = 0;
    for (;;) {
        const qsizetype end = raw.indexOf(QChar::ParagraphSeparator, start);
        text.append(QStringView(raw).sliced(start, (end < 0 ? raw.size() : end) - start));
        if (end < 0) return text;
        block = block.next();
        text.append(charactersOf(marks.lineEndBefore(block)));
        start = end + 1;
    }
}

} // namespace lexiform::qt
