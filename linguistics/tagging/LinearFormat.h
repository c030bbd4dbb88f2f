#pragma once

#include "linguistics/text/UniversalPos.h"

#include <cstddef>
#include <cstdint>

namespace lexiform::linguistics {

// What the sections of a linear model hold, as docs/formats/model.md describes it.

/// A weight of the linear model: what a feature adds to one label's score.
struct WeightRecord {
    std::uint16_t check = 0; ///< bits 16 to 31 of the feature's hash
    std::uint8_t label = 0;  ///< a `UniversalPos`
    std::int8_t weight = 0;
};
static_assert(sizeof(WeightRecord) == 4);

/// Scores of labels and rows of transitions have this many places, whole vector registers; those past
/// the labels are zero in a file and mean nothing.
inline constexpr std::size_t scoreCount = 24;
static_assert(universalPosCount <= scoreCount);

/// No transition in a file is further from zero, so that sums of a few scores fit 16 bits.
inline constexpr int largestTransition = 4000;

/// The bucket of a feature among `count`, a power of two.
[[nodiscard]] constexpr std::size_t bucketOf(std::uint64_t feature, std::size_t count) {
    return static_cast<std::size_t>(feature >> 32) & (count - 1);
}
[[nodiscard]] constexpr std::uint16_t checkOf(std::uint64_t feature) {
    return static_cast<std::uint16_t>(feature >> 16);
}

} // namespace lexiform::linguistics
