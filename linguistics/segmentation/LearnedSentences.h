#pragma once

#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/segmentation/LineWrapping.h"
#include "linguistics/text/Analysis.h"

#include <span>
#include <string_view>

namespace lexiform::linguistics {

/// Sets `startsSentence` anew on the tokens of one paragraph, which the rules have set, by what has been
/// learnt of its language; that has a decider for sentence ends. The ranges count from the start of
/// `text`.
void reviseSentences(std::string_view text, std::span<Token> tokens, LineBreaks& lineBreaks,
                     const LearnedSegmentation& learned);

} // namespace lexiform::linguistics
