#include "tools/train/network/Network.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace lexiform::train {
namespace {

using namespace linguistics;

constexpr std::size_t formCount = 6;

RowLayout smallLayout() {
    return RowLayout({8, 2, 2, listRowCount, 2, 2, 2, 2, 2, 2, 2, 2});
}

/// A small network, a sentence whose labels of every kind are known, and one whose parts of speech are likely
/// to some degree.
struct NetworkUnderTest {
    NetworkShape shape;
    Network network;
    std::vector<SeenForm> forms;
    std::vector<Example> examples;

    explicit NetworkUnderTest(std::size_t layers) : shape(shapeOf(layers)), network(shape, 7) {
        for (std::uint32_t form = 0; form < formCount; ++form) {
            WordRows rows;
            rows.add(shape.layout.row(RowKind::word, 2 + form % 4));
            rows.add(shape.layout.row(RowKind::shape, form % 2));
            forms.push_back({rows, 1});
        }
        Example known;
        known.forms = {0, 1, 2, 3};
        known.pos = {1, 2, 3, 2};
        known.names = {0, 1, 2, 0};
        known.fine = {1, 0, 2, 1};
        known.features = {2, 1, 1, 0};
        known.nameWeight = 0.5F;
        Example likely;
        likely.forms = {4, 5, 1};
        std::mt19937 random(3);
        likely.likelyPos = distributions(3, universalPosCount, random);
        examples = {known, likely};
    }

    static NetworkShape shapeOf(std::size_t layers) {
        return {.layout = smallLayout(),
                .width = 16,
                .units = 16,
                .layers = layers,
                .fineLabels = 3,
                .featureLabels = 3};
    }
    static std::vector<float> distributions(std::size_t words, std::size_t labels, std::mt19937& random) {
        std::vector<float> values(words * labels);
        for (std::size_t word = 0; word < words; ++word) {
            float sum = 0;
            for (std::size_t label = 0; label < labels; ++label)
                sum += values[word * labels + label] = uniform(random);
            for (std::size_t label = 0; label < labels; ++label)
                values[word * labels + label] /= sum;
        }
        return values;
    }

    double learn() {
        std::mt19937 random(1);
        const std::vector<const Example*> batch = {&examples[0], &examples[1]};
        return network.learn(batch, forms, {}, {}, random);
    }
    // The loss without the gradients that come with it.
    double loss() {
        const double value = learn();
        for (const auto& parameter : network.parameters().all())
            parameter->gradient.setZero();
        return value;
    }
};

// Halfway between the losses with a little more and a little less.
double slopeOf(float& value, const std::function<double()>& loss) {
    constexpr float little = 2e-3F;
    const float before = value;
    value = before + little;
    const double more = loss();
    value = before - little;
    const double less = loss();
    value = before;
    return (more - less) / (2 * static_cast<double>(little));
}

// The two chains' transitions come last.
constexpr std::size_t transitionCount = 2;

void expectSlopes(NetworkUnderTest& under, std::size_t first, std::size_t last) {
    under.learn();
    std::vector<Matrix> gradients;
    for (const auto& parameter : under.network.parameters().all())
        gradients.push_back(parameter->gradient);
    under.loss();
    std::mt19937 random(5);
    for (std::size_t p = first; p < last; ++p) {
        std::vector<float>& values = under.network.parameters().all()[p]->value.values();
        for (int i = 0; i < 12; ++i) {
            const std::size_t at = random() % values.size();
            const double slope = slopeOf(values[at], [&] { return under.loss(); });
            EXPECT_NEAR(slope, static_cast<double>(gradients[p].values()[at]), 2e-3) << "parameter " << p;
        }
    }
}

TEST(Gradient, isTheSlopeOfTheLossWithOneLayer) {
    NetworkUnderTest under(1);
    expectSlopes(under, 0, under.network.parameters().all().size() - transitionCount);
}

TEST(Gradient, isTheSlopeOfTheLossWithTwoLayers) {
    NetworkUnderTest under(2);
    expectSlopes(under, 0, under.network.parameters().all().size() - transitionCount);
}

TEST(Gradient, ofTransitionsIsTheSlopeOfTheLossByKnownLabels) {
    NetworkUnderTest under(1);
    // Of likelihoods they learn nothing.
    under.examples[1].likelyPos.clear();
    const std::size_t count = under.network.parameters().all().size();
    expectSlopes(under, count - transitionCount, count);
}

TEST(Gradient, reachesTheRowsOfWords) {
    NetworkUnderTest under(1);
    under.learn();
    const Matrix gradients = under.network.rows().gradients();
    under.loss();
    for (const std::size_t row : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{8}})
        for (std::size_t i = 0; i < 16; i += 5) {
            float& value = under.network.rows().values().row(row)[i];
            const double slope = slopeOf(value, [&] { return under.loss(); });
            EXPECT_NEAR(slope, static_cast<double>(gradients.row(row)[i]), 2e-3) << "row " << row;
        }
}

} // namespace
} // namespace lexiform::train
