#pragma once

#include "linguistics/file/ModelFormat.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace lexiform::linguistics {

// The sections from which languages are told, in a file of their own (docs/formats/model.md).

inline constexpr std::uint32_t identificationVersion = 1;

inline constexpr SectionId identificationLanguages = SectionId::identification;
inline constexpr SectionId identificationBuckets{static_cast<std::uint32_t>(SectionId::identification) + 1};
inline constexpr SectionId identificationWeights{static_cast<std::uint32_t>(SectionId::identification) + 2};

/// No file tells more languages.
inline constexpr std::size_t mostLanguages = 128;

/// Weights are logarithms of odds, in this fraction of a natural unit.
inline constexpr std::int32_t unitsPerNat = 16;

struct LanguageRecord {
    std::array<char, 8> code{}; ///< BCP 47, padded with zeros; at least one zero
    std::uint32_t writings = 0; ///< in which the language is written
    std::uint32_t thorough = 0; ///< 1 where the training text was ample, else 0
};
static_assert(sizeof(LanguageRecord) == 16);

/// What a feature says for a language.
struct NgramWeight {
    std::uint16_t check = 0; ///< bits 16 to 31 of the feature's hash
    std::uint8_t language = 0;
    std::int8_t weight = 0;
};
static_assert(sizeof(NgramWeight) == 4);

/// The bucket of a feature among `count`, a power of two.
[[nodiscard]] constexpr std::size_t ngramBucketOf(std::uint64_t hash, std::size_t count) {
    return static_cast<std::size_t>(hash >> 32) & (count - 1);
}
[[nodiscard]] constexpr std::uint16_t ngramCheckOf(std::uint64_t hash) {
    return static_cast<std::uint16_t>(hash >> 16);
}

} // namespace lexiform::linguistics
