#include "tools/train/network/ChainLoss.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lexiform::train {
namespace {

// Label 2 follows no other than 1.
bool mayFollow(std::size_t previous, std::size_t next) {
    return next != 2 || previous == 1;
}

/// A chain of three labels with transitions that tell them apart.
struct ChainUnderTest {
    Parameters parameters;
    std::mt19937 random{1};
    ChainLoss chain{3, mayFollow, parameters, random};
    std::vector<float> values = {0.5F, 1, 3, -1, 0.2F, 0.4F, 2, 0.1F, 0};

    ChainUnderTest() {
        float next = -0.6F;
        for (float& value : parameters.all().front()->value.values())
            value = next += 0.1F;
    }
    [[nodiscard]] ChainLoss::Emissions emissions() const { return {values.data(), 3, 3}; }

    // The exponential of a sequence's score; 0 where it may not be.
    [[nodiscard]] double weightOf(const std::vector<std::uint8_t>& labels) const {
        double score = 0;
        for (std::size_t i = 0; i < labels.size(); ++i) {
            const std::size_t previous = i == 0 ? 3 : labels[i - 1];
            if (!mayFollow(previous, labels[i])) return 0;
            score +=
                static_cast<double>(values[i * 3 + labels[i]] + chain.transitions().row(previous)[labels[i]]);
        }
        return std::exp(score);
    }
    template <typename Visit>
    void eachSequence(Visit visit) const {
        for (std::uint8_t a = 0; a < 3; ++a)
            for (std::uint8_t b = 0; b < 3; ++b)
                for (std::uint8_t c = 0; c < 3; ++c)
                    visit(std::vector<std::uint8_t>{a, b, c});
    }
};

TEST(ChainLoss, givesTheLikelihoodsThatAllSequencesHaveTogether) {
    ChainUnderTest under;
    std::vector<double> sums(9, 0.0);
    double all = 0;
    under.eachSequence([&](const auto& labels) {
        all += under.weightOf(labels);
        for (std::size_t i = 0; i < 3; ++i)
            sums[i * 3 + labels[i]] += under.weightOf(labels);
    });
    const auto likely = under.chain.likelihoods(under.emissions());
    for (std::size_t i = 0; i < 9; ++i)
        EXPECT_NEAR(static_cast<double>(likely[i]), sums[i] / all, 1e-5);
}

TEST(ChainLoss, isTheLogarithmOfTheGoldSequencesShare) {
    ChainUnderTest under;
    double all = 0;
    under.eachSequence([&](const auto& labels) { all += under.weightOf(labels); });
    const std::vector<std::uint8_t> gold = {1, 2, 0};
    std::vector<float> gradient(9, 0.0F);
    const double loss = under.chain.addGradient(under.emissions(), gold, 1, gradient.data());
    EXPECT_NEAR(loss, -std::log(under.weightOf(gold) / all), 1e-5);
}

TEST(ChainLoss, learnsFromCertainLikelihoodsAsFromLabels) {
    ChainUnderTest under;
    const std::vector<std::uint8_t> gold = {1, 2, 0};
    const std::vector<float> certain = {0, 1, 0, 0, 0, 1, 1, 0, 0};
    std::vector<float> byLabels(9, 0.0F), byLikelihoods(9, 0.0F);
    under.chain.addGradient(under.emissions(), gold, 0.5F, byLabels.data());
    under.chain.addSoftGradient(under.emissions(), certain, 0.5F, byLikelihoods.data());
    for (std::size_t i = 0; i < 9; ++i)
        EXPECT_NEAR(byLabels[i], byLikelihoods[i], 1e-6F);
}

TEST(ChainLoss, findsTheBestSequence) {
    ChainUnderTest under;
    std::vector<std::uint8_t> best;
    double highest = 0;
    under.eachSequence([&](const auto& labels) {
        if (under.weightOf(labels) <= highest) return;
        highest = under.weightOf(labels);
        best = labels;
    });
    EXPECT_EQ(under.chain.best(under.emissions()), best);
}

} // namespace
} // namespace lexiform::train
