#pragma once

#include "linguistics/network/WordRows.h"
#include "linguistics/text/NameLabel.h"
#include "linguistics/text/UniversalPos.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace lexiform::linguistics {

// The sections of a recurrent network, as docs/formats/model.md describes them.

/// Changes whenever a section's layout, the arithmetic or the rows of words do.
inline constexpr std::uint32_t networkVersion = 1;

/// Numbers in a row, and so in what the network sees of a word.
inline constexpr std::size_t networkWidth = 64;
/// Units of the recurrent layer in each direction.
inline constexpr std::size_t networkUnits = 64;
/// A candidate, an update gate and an output gate for each unit of a direction.
inline constexpr std::size_t directionGates = 3 * networkUnits;
inline constexpr std::size_t networkGates = 2 * directionGates;
/// A word bears on the word after it, itself, and the word before it.
inline constexpr std::size_t windowPlaces = 3;
inline constexpr std::size_t projectionSize = windowPlaces * networkGates;
/// What the layer gives of a word: both directions' units.
inline constexpr std::size_t networkOutputs = 2 * networkUnits;
/// Scores of the parts of speech, then those of the name labels.
inline constexpr std::size_t networkLabels = universalPosCount + nameLabelCount;

/// A row in the file: four numbers of six bits in three bytes, the first in the lowest bits. Each is 32 more
/// than its value, so that values reach from -32 to 31.
inline constexpr std::size_t packedRowSize = networkWidth * 6 / 8;

// Numbers with a fixed point. No sum of them can leave its type, whatever bytes a file holds.

/// One of a gate before its bounds.
inline constexpr int gateOne = 1024;
/// No projection of one word is further from zero, so that the sum of three fits 16 bits.
inline constexpr int largestProjection = 10900;
/// One of a state.
inline constexpr int stateOne = 16384;
/// One of an output of the layer: a state times a gate of at most 32768, over 65536.
inline constexpr int outputOne = 8192;
/// One of a label's score and of a transition.
inline constexpr int scoreOne = 128;
inline constexpr int largestNetworkScore = 16000;
/// Of biases and transitions; a transition is no further from zero, a forbidden one is not in the file.
inline constexpr int largestNetworkBias = 4000;

/// Sizes and fixed points of a network.
struct NetworkDimensions {
    std::uint32_t width = networkWidth;
    std::uint32_t units = networkUnits;
    RowLayout::Counts rowCounts{};
    /// How far to shift the sum of the products of a word's numbers and weights for a projection.
    std::uint32_t gateShift = 0;
    /// The same of outputs and weights for a score.
    std::uint32_t scoreShift = 0;
};
static_assert(sizeof(NetworkDimensions) == 64);

inline constexpr std::uint32_t largestShift = 24;

} // namespace lexiform::linguistics
