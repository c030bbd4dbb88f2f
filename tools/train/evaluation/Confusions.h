#pragma once

#include "linguistics/lemmas/LemmaModel.h"
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

/// A word that a model gives a wrong lemma, and how often.
struct LemmaConfusion {
    std::size_t count = 0;
    std::string form, gold, system;
    linguistics::UniversalPos pos; ///< that the model gives it
};

/// The `most` commonest wrong lemmas that `lemmas` gives the words of `gold` with the parts of speech of
/// `model`, the commonest first.
[[nodiscard]] std::vector<LemmaConfusion> lemmaConfusionsOf(const linguistics::SequenceModel& model,
                                                            const linguistics::LemmaModel& lemmas,
                                                            const Corpus& gold, std::size_t most);

} // namespace lexiform::train
