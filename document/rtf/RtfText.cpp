#include "document/rtf/RtfText.h"

namespace lexiform::document {

void RtfText::append(std::string_view piece, Colour colour) {
    if (piece.empty()) return;
    separateCells();
    text_.append(piece, colour);
}

void RtfText::endRow(Colour colour) {
    if (endedCells_ > 0) --endedCells_;
    separateCells();
    text_.append("\n", colour);
}

void RtfText::endLine() {
    endedCells_ = 0;
    if (!isAtLineStart()) text_.append("\n", Colour::text);
}

bool RtfText::isAtLineStart() const {
    return text_.empty() || text_.string().back() == '\n';
}

void RtfText::separateCells() {
    text_.append(std::string(endedCells_, '\t'), Colour::text);
    endedCells_ = 0;
}

} // namespace lexiform::document
