#pragma once

#include "linguistics/text/Analysis.h"

#include <span>
#include <string_view>

namespace lexiform::linguistics {

/// Sets `pos` by a token's characters alone, which is all that can be said without a model: numerals,
/// punctuation and symbols are told, every other word is X.
void tagByCharacters(std::string_view text, std::span<Token> tokens);

/// Whether a word is written in digits, with the marks that figures hold ("1,000", "10:30", "٤٢").
[[nodiscard]] bool isFigure(std::string_view word);

} // namespace lexiform::linguistics
