#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lexiform::train {

/// Decisions with their features, one after the other in memory.
class Examples {
public:
    void add(std::span<const std::uint32_t> features, bool answer, float weight = 1) {
        features_.insert(features_.end(), features.begin(), features.end());
        ends_.push_back(features_.size());
        answers_.push_back(answer);
        weights_.push_back(weight);
    }

    [[nodiscard]] std::size_t size() const { return ends_.size(); }
    [[nodiscard]] std::span<const std::uint32_t> features(std::size_t i) const {
        const std::size_t start = i == 0 ? 0 : ends_[i - 1];
        return std::span(features_).subspan(start, ends_[i] - start);
    }
    [[nodiscard]] bool answer(std::size_t i) const { return answers_[i]; }
    [[nodiscard]] float weight(std::size_t i) const { return weights_[i]; }

private:
    std::vector<std::uint32_t> features_;
    std::vector<std::size_t> ends_;
    std::vector<bool> answers_;
    std::vector<float> weights_;
};

struct LinearTraining {
    std::size_t tableSize = std::size_t{1} << 15; ///< a power of two
    int epochs = 5;
    float rate = 0.1F;
    float decay = 1e-3F;    ///< how much a weight is pulled towards nothing with each step
    float trustInRules = 2; ///< the weight that the rules' answer starts with
    unsigned fewest = 2;    ///< features seen in fewer examples are left out
};

/// The weights of a classifier that answers as `examples` do, as far as it can: logistic regression by
/// stochastic gradients with a rate for each weight (Duchi, Hazan and Singer 2011, "Adaptive subgradient
/// methods"), averaged over the last half of the training, rounded to bytes. The same examples give the
/// same weights.
[[nodiscard]] std::vector<std::int8_t> trainLinear(const Examples& examples, const LinearTraining& training);

} // namespace lexiform::train
