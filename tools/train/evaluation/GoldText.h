#pragma once

#include "base/TextRange.h"
#include "tools/train/corpora/Corpus.h"

#include <string>
#include <vector>

namespace lexiform::train {

/// The raw text of a corpus and where its tokens and sentences stand in it.
struct GoldText {
    std::string text;
    std::vector<TextRange> tokens; ///< of all sentences, one after the other
    std::vector<std::size_t> sentenceStarts;
};

/// Joins the tokens of `corpus` as it says: paragraphs parted by blank lines, sentences in a paragraph by a
/// space.
[[nodiscard]] GoldText textOf(const Corpus& corpus);

/// Whether the corpus tells where spaces are: some two of its words stand together.
[[nodiscard]] bool tellsSpaces(const Corpus& corpus);

} // namespace lexiform::train
