#pragma once

#include "linguistics/tagging/SequenceModel.h"
#include "tools/train/corpora/Corpus.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lexiform::train {

/// A word that a model gives a wrong part of speech, and how often.
struct Confusion {
    std::size_t count = 0;
    std::string form; ///< in lower case
    linguistics::UniversalPos gold, system;
};

/// The `most` commonest confusions over the words of `gold`, the commonest first.
[[nodiscard]] std::vector<Confusion> confusionsOf(const linguistics::SequenceModel& model, const Corpus& gold,
                                                  std::size_t most);

} // namespace lexiform::train
