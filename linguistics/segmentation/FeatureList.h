#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lexiform::linguistics {

/// The kind of the feature that tells what the rules decide, 1 for yes; a trainer starts from it.
inline constexpr std::uint32_t ruleFeature = 1000;

/// The features of one decision: numbers that a `LinearClassifier` looks weights up by (Weinberger et al.
/// 2009, "Feature hashing for large scale multitask learning"). The numbers are part of the format of
/// the weights: each decision numbers its templates from 0 and never gives one another meaning.
class FeatureList {
public:
    /// Adds the feature that `kind` makes of up to four values; further ones than fit are left out.
    void add(std::uint32_t kind, std::uint32_t a, std::uint32_t b = 0, std::uint32_t c = 0,
             std::uint32_t d = 0) {
        if (count_ == features_.size()) return;
        std::uint64_t x = (std::uint64_t{a} << 32 | b) * 0x9E3779B97F4A7C15U + kind * 0xD6E8FEB86659FD93U;
        x ^= x >> 29;
        x = (x + (std::uint64_t{c} << 32 | d)) * 0xBF58476D1CE4E5B9U;
        features_[count_++] = static_cast<std::uint32_t>((x ^ (x >> 32)) * 0x94D049BB133111EBU >> 32);
    }

    void clear() { count_ = 0; }
    [[nodiscard]] std::span<const std::uint32_t> view() const { return {features_.data(), count_}; }

private:
    std::array<std::uint32_t, 40> features_{};
    std::size_t count_ = 0;
};

} // namespace lexiform::linguistics
