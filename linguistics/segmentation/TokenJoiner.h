#pragma once

#include "linguistics/segmentation/Conventions.h"
#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/text/Analysis.h"

#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Joins tokens over single spaces where a language writes words with spaces inside: the thousands of a
/// number ("10 000") and, as learnt, syllables ("sinh viên"). Takes the tokens of `paragraph` from index
/// `first` on; their ranges count from `offset`, the place of the paragraph in the text.
void joinOverSpaces(std::string_view paragraph, std::size_t offset, Conventions conventions,
                    const LearnedSegmentation* learned, std::size_t first, std::vector<Token>& tokens);

} // namespace lexiform::linguistics
