#pragma once

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

/// Where the last enclitic of an English word starts ("do|n't", "it|'s"), or the word's length if it has
/// none.
[[nodiscard]] std::size_t startOfEnclitic(std::string_view word);

/// Whether an English word is a name as "O'Neill", which is one token.
[[nodiscard]] bool isIrishName(std::string_view word);

} // namespace lexiform::linguistics
