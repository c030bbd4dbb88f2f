#pragma once

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

/// Tokens of one sentence that are to be analysed together as one language.
struct LanguageSpan {
    std::size_t first = 0;       ///< index of its first token in the paragraph
    std::size_t end = 0;         ///< one past its last
    std::string_view language{}; ///< BCP 47; empty where none is known
    bool isTold = false;         ///< whether the text tells the language; else it is a guess to work with
};

} // namespace lexiform::linguistics
