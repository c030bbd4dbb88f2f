#pragma once

#include <cstdint>
#include <string_view>

namespace lexiform::document {

/// How an HTML element shapes the text around it.
enum class HtmlElement : std::uint8_t {
    inlined,      ///< not at all; unknown elements as well
    block,        ///< stands on lines of its own
    lineBreak,    ///< ends a line
    cell,         ///< of a table: a tab stands between it and the next of its row
    row,          ///< of a table
    preformatted, ///< a block that keeps its spaces and line ends
    hidden        ///< neither it nor what is inside it is seen
};

/// What is known of an element; names are in small letters.
[[nodiscard]] HtmlElement htmlElement(std::string_view name);

} // namespace lexiform::document
