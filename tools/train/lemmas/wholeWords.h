#pragma once

#include "tools/train/lemmas/LemmaPerceptron.h"

#include <cstddef>
#include <span>
#include <vector>

namespace lexiform::train {

/// Mends what pruning and rounding have spoilt: where `weights`, rounded as in a model, give the word of an
/// example a wrong label, its first feature, which must be the word as a whole, gets the weight that it
/// needs. The words that count most come first, as long as there is `room` for new weights. `fits` and
/// `fallback` are as for LemmaPerceptron; examples that have neighbours are left out.
void mendWholeWords(std::span<const LemmaExample> examples, const LemmaPerceptron::Fits& fits,
                    std::uint32_t fallback, std::size_t room, std::vector<LearntWeight>& weights);

} // namespace lexiform::train
