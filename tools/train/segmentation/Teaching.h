#pragma once

#include "linguistics/segmentation/LearnedSegmentation.h"
#include "tools/train/segmentation/LinearTrainer.h"
#include "tools/train/segmentation/RawText.h"

#include <string_view>
#include <vector>

namespace lexiform::train {

/// The decisions that a language's text asks for, each with its features and the annotation's answer.
struct SegmentationExamples {
    Examples tokenEnds, spaceJoins, characters, sentenceEnds;
};

/// Cuts `raw` into tokens as the annotation has them and gathers the decisions on the way: those on
/// tokens where `ofTokens`, else those on sentence ends between the tokens that `learned` gives.
void gatherExamples(const RawText& raw, std::string_view language,
                    const linguistics::LearnedSegmentation& learned, bool ofTokens,
                    SegmentationExamples& examples);

/// The last parts of words that the annotation cuts inside, letter from letter, and the last two bytes of
/// such words.
struct WordEndings {
    std::vector<std::uint32_t> endings; ///< hashes, ascending
    std::vector<std::uint8_t> pairs;    ///< the bits of a `PairSet`; empty where there are no endings
};
[[nodiscard]] WordEndings endingsIn(const std::vector<RawText>& texts);

} // namespace lexiform::train
