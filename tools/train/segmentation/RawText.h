#pragma once

#include "tools/train/corpora/Corpus.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lexiform::train {

/// How the sentences of a corpus are laid out as running text.
enum class Layout {
    paragraphs, ///< parted by a blank line; sentences in a paragraph by a space
    lines,      ///< a sentence a line
    wrapped,    ///< as `paragraphs`, but some sentences to one, and set in a column of 50 to 80 characters
};

/// A running text and where its tokens and sentences are.
struct RawText {
    std::string text;
    std::vector<bool> tokenEnds;      ///< for each byte of the text and its end: whether a token ends there
    std::vector<bool> sentenceStarts; ///< likewise
    std::vector<bool> inToken;        ///< whether a token reaches over that byte's start
    std::size_t tokens = 0, sentences = 0;
};

/// The text of `corpus`, whose spacing must be that of a running text.
[[nodiscard]] RawText rawTextOf(const Corpus& corpus, Layout layout);

} // namespace lexiform::train
