#pragma once

#include "linguistics/text/NameLabel.h"
#include "linguistics/text/UniversalPos.h"

#include <optional>
#include <string>
#include <vector>

namespace lexiform::train {

/// A surface token of an annotated text.
struct GoldToken {
    std::string form;
    std::optional<linguistics::UniversalPos> pos; ///< nothing where the corpus has no universal tags
    std::string finePos;                          ///< the corpus's own tag; may be empty
    linguistics::NameLabel name = linguistics::NameLabel::outside;
    bool spaceAfter = true;
    std::optional<std::string> lemma; ///< nothing where the corpus has none, or none to learn from
    std::string features;             ///< morphological features, "Case=Nom|Number=Sing"; may be empty
    /// Where the token is a contraction of several words: the parts of speech and lemmas of the words
    /// after the first, whose own are above.
    std::vector<linguistics::UniversalPos> furtherPos{};
    std::vector<std::string> furtherLemmas{};
};

struct GoldSentence {
    std::vector<GoldToken> tokens;
    bool startsParagraph = false;
    bool namesKnown = true; ///< whether its tokens' names are annotated, where those of its corpus are
};

using Corpus = std::vector<GoldSentence>;

} // namespace lexiform::train
