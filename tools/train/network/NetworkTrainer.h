#pragma once

#include "tools/train/network/Network.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace lexiform::train {

/// How a network is trained.
struct TrainingPlan {
    int epochs = 10;
    float rate = 0.003F; ///< the highest: it rises to it in the first twentieth and falls to nothing
    std::size_t batchWords = 500;
    std::size_t turns = 1; ///< epochs in which all lessons come once
    float bound = 1e9F;    ///< no parameter is further from zero
    Noise noise{};
    LossWeights weights{};
    std::uint32_t seed = 1;
};

/// Sentences to learn from.
struct Lessons {
    std::vector<const Example*> always;    ///< in every epoch
    std::vector<const Example*> sometimes; ///< each in one of `TrainingPlan::turns` epochs
};

/// Trains `network` on `lessons`, in a new order in each epoch; tells `report` the epoch, from 1, and the
/// mean loss after each. The same seed gives the same network.
void train(Network& network, const Lessons& lessons, std::span<const SeenForm> forms,
           const TrainingPlan& plan, const std::function<void(int, double)>& report);

/// How well labels fit annotated examples.
struct Scores {
    double pos = 0;   ///< percent of words
    double names = 0; ///< the harmonic mean of precision and recall, in percent
};
[[nodiscard]] Scores scoresOf(std::span<const Example> examples,
                              const std::function<Network::Labels(const Example&)>& label);

} // namespace lexiform::train
