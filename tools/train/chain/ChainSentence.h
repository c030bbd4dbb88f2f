#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lexiform::train {

/// A sentence as the trainer sees it: numbers only.
struct ChainSentence {
    std::vector<std::uint32_t> features;   ///< of all words, one word after the other
    std::vector<std::uint32_t> ends;       ///< for each word the end of its features
    std::vector<std::uint8_t> transitions; ///< for each word the class that its transitions depend on
    std::vector<std::uint8_t> labels;      ///< the right ones
    float weight = 1;                      ///< how much the sentence counts

    [[nodiscard]] std::size_t size() const { return labels.size(); }
    [[nodiscard]] std::span<const std::uint32_t> featuresOf(std::size_t word) const {
        const std::size_t start = word == 0 ? 0 : ends[word - 1];
        return std::span(features).subspan(start, ends[word] - start);
    }
};

/// How a model is trained.
struct ChainOptions {
    int epochs = 10;
    float rate = 0.15F;
    /// The strength of the pull towards zero, which keeps the model sparse.
    float shrinkage = 0.0F;
    /// The share of a word's features that is hidden at each step, so that none is relied on alone.
    float dropout = 0.0F;
    std::uint64_t seed = 1;
};

} // namespace lexiform::train
