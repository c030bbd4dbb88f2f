#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lexiform::document {

/// Lays the text of an HTML page out in lines: spaces collapse to one and vanish at the ends of a line,
/// blocks stand on lines of their own, and the cells of a row have tabs between them.
class HtmlText {
public:
    /// Text as it stands in the page.
    void append(std::string_view text);
    /// Text that keeps its spaces and line ends; a line feed in it ends a line.
    void appendPreformatted(std::string_view text);

    /// The start or the end of a block: what follows begins a line.
    void breakBlock();
    /// An explicit line end. At the end of a block it shows no line more.
    void breakLine();
    void startRow();
    void startCell();

    /// The text; its last line, if any, ends in a line feed.
    [[nodiscard]] std::string take() &&;

private:
    void appendWord(std::string_view word);
    void settle();
    void settleLines();
    [[nodiscard]] bool isAtLineStart() const { return text_.empty() || text_.back() == '\n'; }

    std::string text_;
    std::size_t cells_ = 0;      ///< tabs that the row's next text needs before it
    bool isCellStarted_ = false; ///< the row has had a cell
    std::size_t lineEnds_ = 0;   ///< that the next text needs before it
    bool owesSpace_ = false;
};

} // namespace lexiform::document
