#include "linguistics/network/NetworkKernels.h"

#include "linguistics/network/VectorKernels.h"

#include <algorithm>
#include <array>

namespace lexiform::linguistics {

namespace {

constexpr std::size_t pairs = networkWidth / 2;

std::int16_t bounded(int value, int limit) {
    return static_cast<std::int16_t>(std::clamp(value, -limit, limit));
}

void project(const std::int16_t* inputs, const std::int16_t* weights, const std::int16_t* bias,
             std::uint32_t shift, std::int16_t* projection) {
    for (std::size_t block = 0; block < projectionSize; block += projectionBlock) {
        std::array<int, projectionBlock> sums{};
        for (std::size_t pair = 0; pair < pairs; ++pair, weights += 2 * projectionBlock)
            for (std::size_t i = 0; i < projectionBlock; ++i)
                sums[i] += inputs[2 * pair] * weights[2 * i] + inputs[2 * pair + 1] * weights[2 * i + 1];
        for (std::size_t i = 0; i < projectionBlock; ++i)
            projection[block + i] = bounded((sums[i] >> shift) + bias[block + i], largestProjection);
    }
}

// From 0 to almost 32768.
int gateOf(int sum) {
    constexpr int reach = 2 * gateOne;
    return (std::clamp(sum, -reach, reach - 1) + reach) * (32768 / (2 * reach));
}

void advance(const std::int16_t* before, const std::int16_t* own, const std::int16_t* after,
             std::int16_t* states, std::int16_t* outputs) {
    const auto sumAt = [&](std::size_t i) { return before[i] + own[i] + after[i]; };
    for (std::size_t i = 0; i < networkUnits; ++i) {
        const int candidate = std::clamp(sumAt(i), -(gateOne - 1), gateOne - 1) * (stateOne / gateOne);
        const int update = gateOf(sumAt(networkUnits + i));
        const int output = gateOf(sumAt(2 * networkUnits + i));
        // The product keeps sixteen bits, as vector instructions do.
        const int state = states[i] + (((candidate - states[i]) * update) >> 16) * 2;
        states[i] = static_cast<std::int16_t>(state);
        outputs[i] = static_cast<std::int16_t>((state * output) >> 16);
    }
}

void score(const std::int16_t* outputs, const std::int16_t* weights, const std::int16_t* bias,
           std::uint32_t shift, std::int16_t* scores) {
    std::array<int, networkLabels> sums{};
    for (std::size_t pair = 0; pair < networkOutputs / 2; ++pair, weights += 2 * networkLabels)
        for (std::size_t i = 0; i < networkLabels; ++i)
            sums[i] += outputs[2 * pair] * weights[2 * i] + outputs[2 * pair + 1] * weights[2 * i + 1];
    for (std::size_t i = 0; i < networkLabels; ++i)
        scores[i] = static_cast<std::int16_t>(bounded(sums[i] >> shift, largestNetworkScore) + bias[i]);
}

std::vector<const NetworkKernels*> findPresent() {
    std::vector<const NetworkKernels*> present = {&portableKernels()};
    for (const NetworkKernels* kernels : {sse2Kernels(), avx2Kernels(), neonKernels()})
        if (kernels != nullptr) present.push_back(kernels);
    return present;
}

} // namespace

const NetworkKernels& portableKernels() {
    static constexpr NetworkKernels kernels = {project, advance, score};
    return kernels;
}

std::span<const NetworkKernels* const> presentKernels() {
    static const std::vector<const NetworkKernels*> present = findPresent();
    return present;
}

std::vector<std::int16_t> arrangedForProjection(std::span<const std::int8_t> weights) {
    std::vector<std::int16_t> arranged;
    arranged.reserve(weights.size());
    for (std::size_t block = 0; block < projectionSize; block += projectionBlock)
        for (std::size_t pair = 0; pair < pairs; ++pair)
            for (std::size_t i = block; i < block + projectionBlock; ++i)
                for (std::size_t input = 2 * pair; input < 2 * pair + 2; ++input) {
                    const std::size_t row = i / networkGates * networkWidth + input;
                    arranged.push_back(weights[row * networkGates + i % networkGates]);
                }
    return arranged;
}

std::vector<std::int16_t> arrangedForScores(std::span<const std::int8_t> weights) {
    std::vector<std::int16_t> arranged;
    arranged.reserve(weights.size());
    for (std::size_t pair = 0; pair < networkOutputs / 2; ++pair)
        for (std::size_t label = 0; label < networkLabels; ++label)
            for (std::size_t output = 2 * pair; output < 2 * pair + 2; ++output)
                arranged.push_back(weights[output * networkLabels + label]);
    return arranged;
}

} // namespace lexiform::linguistics
