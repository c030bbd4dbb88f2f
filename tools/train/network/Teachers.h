#pragma once

#include "tools/train/network/TrainingData.h"
#include "tools/train/network/trainNetwork.h"

#include <iosfwd>
#include <vector>

namespace lexiform::train {

/// What teachers have labelled: for each word the mean of their likelihoods.
struct Silver {
    std::vector<Example> annotated; ///< all annotated examples, with the kinds of labels that they lacked
    std::vector<Example> open;      ///< text without annotation
};

/// Trains teachers on the annotated examples and lets them label; of text without annotation up to
/// `options.silverWords` words.
[[nodiscard]] Silver silverOf(const TrainingData& data, const Lexicon& lexicon, const Matrix& vectors,
                              const NetworkOptions& options, std::ostream& log);

[[nodiscard]] std::vector<const Example*> pointersTo(const std::vector<Example>& examples);

/// Starts the rows of words from the first of `vectors`, which lie in the order of the vocabulary's rows, and
/// may be shorter than a row.
void startRows(Network& network, const Vocabulary& vocabulary, const Matrix& vectors);

/// The layout of a network's rows where `scale` is 1 for the usual number of affixes.
[[nodiscard]] linguistics::RowLayout layoutOf(const Vocabulary& vocabulary, double scale);

} // namespace lexiform::train
