#include "tools/train/segmentation/LinearTrainer.h"

#include "linguistics/segmentation/FeatureList.h"
#include "linguistics/text/Hash.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace lexiform::train {

using namespace linguistics;

namespace {

/// Trains one classifier.
class Trainer {
public:
    Trainer(const Examples& examples, const LinearTraining& training)
        : examples_(examples), training_(training), mask_(training.tableSize - 1),
          counts_(std::size_t{1} << 22), weights_(training.tableSize), squares_(training.tableSize, 1e-2F),
          sums_(training.tableSize) {}

    std::vector<std::int8_t> train() {
        startFromRules();
        countFeatures();
        std::vector<std::uint32_t> order(examples_.size());
        std::iota(order.begin(), order.end(), 0U);
        for (int epoch = 0; epoch < training_.epochs; ++epoch) {
            shuffle(order, static_cast<std::uint64_t>(epoch));
            for (const std::uint32_t example : order)
                learn(example);
            if (2 * epoch + 1 >= training_.epochs)
                for (std::size_t i = 0; i < weights_.size(); ++i)
                    sums_[i] += weights_[i];
        }
        return rounded();
    }

private:
    void startFromRules() {
        for (const std::uint32_t answer : {0U, 1U}) {
            FeatureList rule;
            rule.add(ruleFeature, answer);
            weights_[rule.view()[0] & mask_] = answer == 1 ? training_.trustInRules : -training_.trustInRules;
        }
    }

    // Collisions in the table of counts let a few rare features in.
    std::uint8_t& count(std::uint32_t feature) {
        return counts_[(feature ^ (feature >> 11)) & (counts_.size() - 1)];
    }

    void countFeatures() {
        for (std::size_t i = 0; i < examples_.size(); ++i)
            for (const std::uint32_t feature : examples_.features(i))
                if (count(feature) < 255) ++count(feature);
    }

    static void shuffle(std::vector<std::uint32_t>& order, std::uint64_t seed) {
        for (std::size_t i = order.size(); i > 1; --i) {
            const std::uint64_t chance = linguistics::combined(seed, i);
            std::swap(order[i - 1], order[chance % i]);
        }
    }

    void learn(std::size_t example) {
        const auto features = examples_.features(example);
        float sum = 0;
        for (const std::uint32_t feature : features)
            if (count(feature) >= training_.fewest) sum += weights_[feature & mask_];
        const float expected = 1 / (1 + std::exp(-sum));
        const float gradient =
            (expected - (examples_.answer(example) ? 1.0F : 0.0F)) * examples_.weight(example);
        if (std::abs(gradient) < 1e-4F) return;
        for (const std::uint32_t feature : features)
            if (count(feature) >= training_.fewest) step(feature & mask_, gradient);
    }

    void step(std::size_t place, float gradient) {
        squares_[place] += gradient * gradient;
        const float rate = training_.rate / std::sqrt(squares_[place]);
        weights_[place] -= rate * (gradient + training_.decay * weights_[place]);
    }

    std::vector<std::int8_t> rounded() const {
        float largest = 1e-6F;
        for (const float sum : sums_)
            largest = std::max(largest, std::abs(sum));
        std::vector<std::int8_t> bytes(sums_.size());
        std::transform(sums_.begin(), sums_.end(), bytes.begin(),
                       [&](float sum) { return static_cast<std::int8_t>(std::lround(sum / largest * 127)); });
        return bytes;
    }

    const Examples& examples_;
    const LinearTraining& training_;
    std::size_t mask_;
    std::vector<std::uint8_t> counts_;
    std::vector<float> weights_, squares_, sums_;
};

} // namespace

std::vector<std::int8_t> trainLinear(const Examples& examples, const LinearTraining& training) {
    return Trainer(examples, training).train();
}

} // namespace lexiform::train
