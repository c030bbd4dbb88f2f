#pragma once

#include "linguistics/Analysis.h"

#include <span>
#include <string_view>

namespace lexiform::linguistics {

/// Sets `startsSentence` on the tokens of one paragraph, whose ranges count from the start of `text`.
/// Sentences end at full stops, question and exclamation marks with the quotes and brackets that
/// close after them, and at line breaks that do not merely wrap prose.
void markSentences(std::string_view text, std::span<Token> tokens);

} // namespace lexiform::linguistics
