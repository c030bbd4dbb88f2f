#include "platform/qt/panes/classLines.h"

#include <QFontInfo>
#include <QTextLayout>

#include <algorithm>

namespace lexiform::qt {

namespace {

// The halves of a surrogate pair count as a word's: what they stand for has a width.
bool isInWord(QChar unit) {
    return unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate();
}

} // namespace

ClassLinePainter::ClassLinePainter(QPainter& painter, const QFont& font)
    : painter_(painter), textSize_(QFontInfo(font).pixelSize()) {}

void ClassLinePainter::paint(const QTextBlock& block, qreal top, qsizetype start, qsizetype length,
                             Colour colour, const QColor& ink) {
    const QString text = block.text();
    const qsizetype end = std::min(start + length, text.size());
    for (qsizetype from = start; from < end; ++from) {
        if (!isInWord(text[from])) continue;
        qsizetype to = from + 1;
        while (to < end && isInWord(text[to]))
            ++to;
        paintWord(block, top, static_cast<int>(from), static_cast<int>(to), classLineOf(colour), ink);
        from = to;
    }
}

void ClassLinePainter::paintWord(const QTextBlock& block, qreal top, int from, int to, const ClassLine& line,
                                 const QColor& ink) {
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine row = block.layout()->lineAt(i);
        const int first = std::max(from, row.textStart());
        const int last = std::min(to, row.textStart() + row.textLength());
        if (first >= last) continue;
        const qreal base = top + row.y() + row.ascent();
        const auto [left, right] = std::minmax({row.cursorToX(first), row.cursorToX(last)});
        paintClassLine(painter_, line, {left, base, right, base}, textSize_, ink);
    }
}

} // namespace lexiform::qt
