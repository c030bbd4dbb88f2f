#pragma once

#include "linguistics/segmentation/Decider.h"

#include <bit>

namespace lexiform::linguistics {

/// Decides by the sum of its features' weights, in integers, so that every processor decides alike.
class LinearClassifier final : public Decider {
public:
    static constexpr std::size_t fewestWeights = 256;
    static constexpr std::size_t mostWeights = std::size_t{1} << 20;

    /// Whether a table of `count` weights can be used: a power of two within the limits.
    [[nodiscard]] static constexpr bool isTableSize(std::size_t count) {
        return std::has_single_bit(count) && count >= fewestWeights && count <= mostWeights;
    }

    /// A classifier over `weights`, whose number satisfies `isTableSize` and which must outlive it.
    explicit LinearClassifier(std::span<const std::int8_t> weights) : weights_(weights) {}

    [[nodiscard]] int score(std::span<const std::uint32_t> features) const {
        const std::size_t mask = weights_.size() - 1;
        int sum = 0;
        for (const std::uint32_t feature : features)
            sum += weights_[feature & mask];
        return sum;
    }

    [[nodiscard]] bool decide(std::size_t, std::span<const std::uint32_t> features) const override {
        return score(features) > 0;
    }

private:
    std::span<const std::int8_t> weights_;
};

} // namespace lexiform::linguistics
