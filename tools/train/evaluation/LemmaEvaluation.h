#pragma once

#include "linguistics/lemmas/LemmaFeatures.h"
#include "linguistics/lemmas/LemmaModel.h"
#include "linguistics/tagging/SequenceModel.h"
#include "tools/train/corpora/Corpus.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace lexiform::train {

/// How many of the words of a text that have a lemma got the right one.
struct LemmaFigures {
    std::size_t words = 0, right = 0;

    /// In percent; 0 for a text without lemmas.
    [[nodiscard]] double accuracy() const {
        return words == 0 ? 0 : 100.0 * static_cast<double>(right) / static_cast<double>(words);
    }
};

/// A wrong lemma.
struct LemmaFault {
    linguistics::TaggedWord word; ///< with the part of speech that it was given
    std::string gold;
    std::string_view lemma; ///< the wrong one
};

using LemmaFaultVisitor = std::function<void(const LemmaFault&)>;

/// Lemmatizes the words of `gold` as they are cut in it, with the tags of `tagger`, or with its own where
/// that is absent. Of a contraction the lemma of any of its words is right.
[[nodiscard]] LemmaFigures evaluateLemmas(const linguistics::LemmaModel& model,
                                          linguistics::SequenceTagger* tagger, const Corpus& gold,
                                          const LemmaFaultVisitor& faults = {});

} // namespace lexiform::train
