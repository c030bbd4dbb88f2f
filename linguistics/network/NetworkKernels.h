#pragma once

#include "linguistics/network/NetworkFormat.h"

#include <cstdint>
#include <span>
#include <vector>

namespace lexiform::linguistics {

/// The inner loops of the network, in one of several ways that give the same numbers.
struct NetworkKernels {
    /// Sets `projectionSize` numbers: the weighted sums of `networkWidth` inputs, shifted, with a bias added,
    /// no further from zero than `largestProjection`. `weights` as `arrangedForProjection` gives them.
    void (*project)(const std::int16_t* inputs, const std::int16_t* weights, const std::int16_t* bias,
                    std::uint32_t shift, std::int16_t* projection);

    /// Moves `networkUnits` states of a direction to the next word, and sets the outputs there. The three are
    /// what the word before, the word itself and the word after add to its `directionGates` gates.
    void (*advance)(const std::int16_t* before, const std::int16_t* own, const std::int16_t* after,
                    std::int16_t* states, std::int16_t* outputs);

    /// Sets `networkLabels` scores: the weighted sums of `networkOutputs` outputs, shifted, no further from
    /// zero than `largestNetworkScore`, with a bias added. `weights` as `arrangedForScores` gives them.
    void (*score)(const std::int16_t* outputs, const std::int16_t* weights, const std::int16_t* bias,
                  std::uint32_t shift, std::int16_t* scores);
};

/// The plain way, for every processor.
[[nodiscard]] const NetworkKernels& portableKernels();
/// All ways that this processor has, the plain one first and the fastest last.
[[nodiscard]] std::span<const NetworkKernels* const> presentKernels();
[[nodiscard]] inline const NetworkKernels& fastestKernels() {
    return *presentKernels().back();
}

// Vector instructions multiply pairs of neighbours and add the two products, so the weights of two inputs
// that follow each other are laid side by side.

/// Projections come in blocks of this many: block by block, pair by pair of inputs, then by projection.
inline constexpr std::size_t projectionBlock = 16;

/// `weights` holds a row of `networkGates` for each input of each place in the window, in this order.
[[nodiscard]] std::vector<std::int16_t> arrangedForProjection(std::span<const std::int8_t> weights);
/// `weights` holds a row of `networkLabels` for each output.
[[nodiscard]] std::vector<std::int16_t> arrangedForScores(std::span<const std::int8_t> weights);

} // namespace lexiform::linguistics
