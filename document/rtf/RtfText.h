#pragma once

#include "base/AttributedText.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lexiform::document {

/// Collects the text of an RTF file, with tabs between the cells of its tables.
class RtfText {
public:
    void append(std::string_view piece, Colour colour);
    /// A cell has ended; the tab behind it comes only when another cell of the row follows.
    void endCell() { ++endedCells_; }
    void endRow(Colour colour);
    /// Puts a line feed behind a last line that has none.
    void endLine();

    [[nodiscard]] bool isAtLineStart() const;
    [[nodiscard]] const AttributedText& text() const { return text_; }
    [[nodiscard]] AttributedText take() && { return std::move(text_); }
    void append(const AttributedText& other) { text_.append(other); }

private:
    void separateCells();

    AttributedText text_;
    std::size_t endedCells_ = 0;
};

} // namespace lexiform::document
