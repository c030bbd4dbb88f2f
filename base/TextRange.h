#pragma once

#include <cstddef>
#include <string_view>

namespace lexiform {

/// A stretch of a text, counted in bytes of its UTF-8.
struct TextRange {
    std::size_t start = 0;
    std::size_t length = 0;

    [[nodiscard]] constexpr std::size_t end() const { return start + length; }
    bool operator==(const TextRange&) const = default;
};

/// The part of `text` that `range` covers. A range that reaches past the end of the text is a
/// broken invariant and stops the program.
[[nodiscard]] std::string_view substring(std::string_view text, TextRange range);

} // namespace lexiform
