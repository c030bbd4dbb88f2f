#pragma once

#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/text/Analysis.h"

#include <span>
#include <string_view>

namespace lexiform::linguistics {

/// Sets `startsSentence` on the tokens of one paragraph, whose ranges count from the start of `text`.
/// By what has been learnt of the paragraph's language, where `learned` is given and has a decider for it;
/// else by rules: sentences end at full stops, question and exclamation marks with the quotes and brackets
/// that close after them, and at line breaks that do not merely wrap prose.
void markSentences(std::string_view text, std::span<Token> tokens,
                   const LearnedSegmentation* learned = nullptr);

} // namespace lexiform::linguistics
