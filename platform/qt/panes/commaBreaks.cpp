#include "platform/qt/panes/commaBreaks.h"

namespace lexiform::qt {

namespace {

void wrap(QTextLayout& layout, QTextLine& line, QTextOption::WrapMode mode, qreal width) {
    QTextOption option = layout.textOption();
    option.setWrapMode(mode);
    layout.setTextOption(option);
    line.setLineWidth(width);
}

qsizetype skipSpaces(QStringView text, qsizetype at) {
    while (at < text.size() && text[at].isSpace())
        ++at;
    return at;
}

// The line is as long as it may be. A width between that of its values and that with one character
// more ends it after them; the spaces behind a comma count for nothing.
void endAfterComma(QTextLayout& layout, QTextLine& line, QStringView text) {
    const int end = line.textStart() + line.textLength();
    if (end >= text.size()) return;
    const qreal width = line.width();
    const qsizetype comma = text.first(end).lastIndexOf(u',');
    const qsizetype next = skipSpaces(text, comma + 1);
    if (comma < line.textStart()) return wrap(layout, line, QTextOption::WrapAtWordBoundaryOrAnywhere, width);
    if (next >= end) return;
    const int beyond = layout.nextCursorPosition(static_cast<int>(next));
    const qreal middle = (line.cursorToX(static_cast<int>(comma) + 1) + line.cursorToX(beyond)) / 2;
    wrap(layout, line, QTextOption::WrapAnywhere, middle - line.cursorToX(line.textStart()));
}

} // namespace

void breakAfterCommas(QTextLayout& layout, QStringView text, qreal width) {
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        wrap(layout, line, QTextOption::WrapAnywhere, width);
        endAfterComma(layout, line, text);
    }
    layout.endLayout();
}

} // namespace lexiform::qt
