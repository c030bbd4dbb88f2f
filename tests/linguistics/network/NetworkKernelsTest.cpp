#include "linguistics/network/NetworkKernels.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace lexiform::linguistics {
namespace {

constexpr int rounds = 30;

std::vector<std::int16_t> numbers(std::size_t count, int limit, std::mt19937& random) {
    std::vector<std::int16_t> values(count);
    for (std::int16_t& value : values)
        value = static_cast<std::int16_t>(static_cast<int>(random() % static_cast<unsigned>(2 * limit + 1)) -
                                          limit);
    return values;
}

std::vector<std::int8_t> weights(std::size_t count, std::mt19937& random) {
    std::vector<std::int8_t> values(count);
    for (std::int8_t& value : values)
        value = static_cast<std::int8_t>(random() % 256);
    return values;
}

// The ways other than the plain one; none on a processor without vector instructions.
std::span<const NetworkKernels* const> vectorKernels() {
    return presentKernels().subspan(1);
}

TEST(NetworkKernels, projectTheSameInEveryWay) {
    std::mt19937 random(1);
    for (int round = 0; round < rounds; ++round) {
        const auto arranged = arrangedForProjection(weights(networkWidth * projectionSize, random));
        const auto inputs = numbers(networkWidth, rowKindCount * 32, random);
        const auto bias = numbers(projectionSize, largestNetworkBias, random);
        std::vector<std::int16_t> plain(projectionSize), other(projectionSize);
        const auto shift = static_cast<std::uint32_t>(round % 8);
        portableKernels().project(inputs.data(), arranged.data(), bias.data(), shift, plain.data());
        for (const NetworkKernels* kernels : vectorKernels()) {
            kernels->project(inputs.data(), arranged.data(), bias.data(), shift, other.data());
            EXPECT_EQ(plain, other);
        }
    }
}

TEST(NetworkKernels, advanceTheSameInEveryWay) {
    std::mt19937 random(2);
    for (int round = 0; round < rounds; ++round) {
        const int limit = round % 2 == 0 ? largestProjection : gateOne;
        const auto before = numbers(directionGates, limit, random);
        const auto own = numbers(directionGates, limit, random);
        const auto after = numbers(directionGates, limit, random);
        const auto states = numbers(networkUnits, stateOne, random);
        auto plainStates = states;
        std::vector<std::int16_t> plain(networkUnits), other(networkUnits);
        portableKernels().advance(before.data(), own.data(), after.data(), plainStates.data(), plain.data());
        for (const NetworkKernels* kernels : vectorKernels()) {
            auto otherStates = states;
            kernels->advance(before.data(), own.data(), after.data(), otherStates.data(), other.data());
            EXPECT_EQ(plainStates, otherStates);
            EXPECT_EQ(plain, other);
        }
    }
}

TEST(NetworkKernels, scoreTheSameInEveryWay) {
    std::mt19937 random(3);
    for (int round = 0; round < rounds; ++round) {
        const auto arranged = arrangedForScores(weights(networkOutputs * networkLabels, random));
        const auto outputs = numbers(networkOutputs, outputOne, random);
        const auto bias = numbers(networkLabels, largestNetworkBias, random);
        std::vector<std::int16_t> plain(networkLabels), other(networkLabels);
        const auto shift = static_cast<std::uint32_t>(round % 16);
        portableKernels().score(outputs.data(), arranged.data(), bias.data(), shift, plain.data());
        for (const NetworkKernels* kernels : vectorKernels()) {
            kernels->score(outputs.data(), arranged.data(), bias.data(), shift, other.data());
            EXPECT_EQ(plain, other);
        }
    }
}

TEST(NetworkKernels, projectOneInputToTheGatesOfItsRow) {
    std::vector<std::int8_t> table(networkWidth * projectionSize, 0);
    table[(2 * networkWidth + 5) * networkGates + 7] = 100; // the word before, input 5, gate 7
    std::vector<std::int16_t> inputs(networkWidth, 0), bias(projectionSize, 0), projection(projectionSize);
    inputs[5] = 3;
    bias[0] = 40;
    portableKernels().project(inputs.data(), arrangedForProjection(table).data(), bias.data(), 1,
                              projection.data());
    std::vector<std::int16_t> expected(projectionSize, 0);
    expected[0] = 40;
    expected[2 * networkGates + 7] = 150;
    EXPECT_EQ(projection, expected);
}

TEST(NetworkKernels, keepStatesInTheirBoundsHoweverLongASentenceIs) {
    std::mt19937 random(4);
    std::vector<std::int16_t> states(networkUnits, 0), outputs(networkUnits);
    for (int word = 0; word < 5000; ++word) {
        const auto sums = numbers(directionGates, largestProjection, random);
        portableKernels().advance(sums.data(), sums.data(), sums.data(), states.data(), outputs.data());
        for (std::size_t i = 0; i < networkUnits; ++i) {
            ASSERT_LE(std::abs(states[i]), stateOne);
            ASSERT_LE(std::abs(outputs[i]), outputOne);
        }
    }
}

} // namespace
} // namespace lexiform::linguistics
