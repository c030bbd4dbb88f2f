#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lexiform::linguistics {

// Hashes are written into model files, so they are the same on every processor and in every version
// of a format.

/// Spreads every bit of `value` over all 64 (the finaliser of Steele, Lea and Flood 2014, "Fast
/// splittable pseudorandom number generators").
[[nodiscard]] constexpr std::uint64_t mixed(std::uint64_t value) {
    value ^= value >> 30;
    value *= 0xBF58476D1CE4E5B9U;
    value ^= value >> 27;
    value *= 0x94D049BB133111EBU;
    return value ^ (value >> 31);
}

/// The hash of two values in this order.
[[nodiscard]] constexpr std::uint64_t combined(std::uint64_t a, std::uint64_t b) {
    return mixed(a * 0x9E3779B97F4A7C15U + b);
}

/// The hash of a text: eight bytes at a time, the last ones padded with the length.
[[nodiscard]] constexpr std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 0x51ED270B27B4F3CFU ^ text.size();
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        word = (word << 8) | static_cast<unsigned char>(text[i]);
        if (i % 8 == 7) {
            hash = combined(hash, word);
            word = 0;
        }
    }
    return combined(hash, word);
}

} // namespace lexiform::linguistics
