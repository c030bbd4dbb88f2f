#pragma once

#include <string>
#include <string_view>

namespace lexiform::document {

/// Collects the paragraphs of a word processor's file: each ends in a line feed, but for the last one in
/// a cell of a table, behind which there is a tab, and behind the last cell of a row a line feed.
class FlowText {
public:
    void append(std::string_view text);
    void endParagraph();
    void startCell() { hasParagraph_ = false; }
    void endCell();
    void endRow();
    /// Adds the lines of another text.
    void appendLines(std::string_view lines);

    [[nodiscard]] std::string take() &&;

private:
    std::string text_;
    std::string breaks_;        ///< what has ended since the last text
    bool hasParagraph_ = false; ///< the cell has had one
};

} // namespace lexiform::document
