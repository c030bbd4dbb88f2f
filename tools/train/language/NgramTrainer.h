#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace lexiform::train {

/// The hashes of a text's features, and the number of its language.
struct NgramExample {
    std::vector<std::uint64_t> features;
    std::uint8_t language = 0;
};

/// A feature's weight for a language: a logarithm of odds, in natural units.
struct TrainedWeight {
    std::uint64_t feature = 0;
    std::uint8_t language = 0;
    float weight = 0;
};

struct NgramTraining {
    std::size_t languages = 0;
    std::size_t mostFeatures = 200'000; ///< that are looked at at all
    std::size_t mostWeights = 330'000;  ///< that are kept
};

/// Multinomial logistic regression by stochastic gradient steps with a rate of its own for every weight
/// (Duchi, Hazan and Singer 2011, "Adaptive subgradient methods"): all weights first, then once more
/// those that were largest. Takes the examples in an order that it shuffles itself.
[[nodiscard]] std::vector<TrainedWeight> trainNgrams(std::vector<NgramExample> examples,
                                                     const NgramTraining& training, std::ostream& log);

} // namespace lexiform::train
