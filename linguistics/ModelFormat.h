#pragma once

#include "linguistics/NameLabel.h"
#include "linguistics/UniversalPos.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lexiform::linguistics {

// The layout of a model file, as docs/formats/model.md describes it. All numbers are little-endian.

inline constexpr std::array<char, 8> modelMagic = {'L', 'X', 'F', 'M', 'O', 'D', 'E', 'L'};
inline constexpr std::uint32_t modelVersion = 1;

/// Sections start at multiples of this, so that their numbers are aligned in the mapped file.
inline constexpr std::size_t sectionAlignment = 8;

enum class SectionId : std::uint32_t {
    lexiconKeys = 1,
    lexiconEntries = 2,
    bucketStarts = 3,
    weights = 4,
    posTransitions = 5,
    nameTransitions = 6,
};
inline constexpr std::size_t sectionCount = 6;

struct SectionRecord {
    std::uint32_t id = 0;
    std::uint32_t reserved = 0;
    std::uint64_t offset = 0; ///< bytes from the start of the file
    std::uint64_t size = 0;   ///< bytes
};

struct ModelHeader {
    std::array<char, 8> magic = modelMagic;
    std::uint32_t version = modelVersion;
    std::uint32_t features = 0;
    std::uint64_t fileSize = 0;
    std::uint64_t checksum = 0;      ///< `checksumOf` the whole file
    std::array<char, 16> language{}; ///< BCP 47, padded with zeros
    std::array<SectionRecord, sectionCount> sections{};
};
static_assert(sizeof(ModelHeader) == 48 + sectionCount * 24);

/// A weight of the linear model: what a feature adds to one label's score.
struct WeightRecord {
    std::uint16_t check = 0; ///< bits 16 to 31 of the feature's hash
    std::uint8_t label = 0;  ///< a `UniversalPos`, or `universalPosCount` plus a `NameLabel`
    std::int8_t weight = 0;
};
static_assert(sizeof(WeightRecord) == 4);

inline constexpr std::size_t labelCount = universalPosCount + nameLabelCount;

/// Scores of labels and rows of transitions have this many places, whole vector registers; those past
/// the labels are zero in a file and mean nothing.
inline constexpr std::size_t scoreCount = 24;
static_assert(labelCount <= scoreCount);

/// No transition in a file is further from zero, so that sums of a few scores fit 16 bits.
inline constexpr int largestTransition = 4000;

/// The bucket of a feature among `count`, a power of two.
[[nodiscard]] constexpr std::size_t bucketOf(std::uint64_t feature, std::size_t count) {
    return static_cast<std::size_t>(feature >> 32) & (count - 1);
}
[[nodiscard]] constexpr std::uint16_t checkOf(std::uint64_t feature) {
    return static_cast<std::uint16_t>(feature >> 16);
}

/// The checksum of a model file, at least a header long: of its header with a checksum of zero, and of
/// the rest.
[[nodiscard]] std::uint64_t checksumOf(std::span<const std::byte> file);

} // namespace lexiform::linguistics
