#pragma once

#include "linguistics/lemmas/LemmaRule.h"
#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/lemmas/LemmaPerceptron.h"

#include <span>
#include <vector>

namespace lexiform::train {

/// What to multiply `weights` by so that they fit the records of a model.
[[nodiscard]] double scaleOf(std::span<const LearntWeight> weights);

/// What a model holds of a weight, rounded and cut off to fit.
[[nodiscard]] int roundedWeight(double weight);

/// The smallest weight that a model holds as it is and that is no less than `weight`, if there is one; else
/// the largest.
[[nodiscard]] int leastRoundedTo(int weight);

/// Appends the sections of a lemmatizer to `file`: `rules`, the first of which changes nothing, and
/// `weights`, whose labels count as in linguistics/lemmas/LemmaFormat.h rounded and cut off to fit.
void writeLemmas(std::span<const linguistics::LemmaRule> rules, std::span<const LearntWeight> weights,
                 ModelFileWriter& file);

} // namespace lexiform::train
