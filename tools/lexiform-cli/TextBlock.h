#pragma once

#include <cstddef>
#include <string>

namespace lexiform::cli {

/// A stretch of a text that is analysed by itself: whole paragraphs.
struct TextBlock {
    std::string text;
    std::size_t offset = 0; ///< bytes from the start of the whole text
};

} // namespace lexiform::cli
