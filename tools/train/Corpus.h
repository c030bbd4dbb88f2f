#pragma once

#include "linguistics/NameLabel.h"
#include "linguistics/UniversalPos.h"

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
};

struct GoldSentence {
    std::vector<GoldToken> tokens;
    bool startsParagraph = false;
};

using Corpus = std::vector<GoldSentence>;

} // namespace lexiform::train
