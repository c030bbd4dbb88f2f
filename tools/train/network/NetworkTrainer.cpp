#include "tools/train/network/NetworkTrainer.h"

#include "linguistics/text/NameLabel.h"

#include <algorithm>
#include <random>

namespace lexiform::train {

using namespace linguistics;

namespace {

// The share of all steps in which the rate rises.
constexpr double risingShare = 0.05;

/// Examples in batches of about as many words.
class Batches {
public:
    Batches(std::span<const Example* const> examples, std::size_t words) {
        std::size_t start = 0, count = 0;
        for (std::size_t i = 0; i < examples.size(); ++i) {
            count += examples[i]->forms.size();
            if (count < words && i + 1 < examples.size()) continue;
            batches_.push_back(examples.subspan(start, i + 1 - start));
            start = i + 1;
            count = 0;
        }
    }
    [[nodiscard]] auto begin() const { return batches_.begin(); }
    [[nodiscard]] auto end() const { return batches_.end(); }

private:
    std::vector<Network::Batch> batches_;
};

// Fisher and Yates; std::shuffle may differ from library to library.
void shuffle(std::vector<const Example*>& examples, std::mt19937& random) {
    for (std::size_t i = examples.size(); i > 1; --i)
        std::swap(examples[i - 1], examples[random() % i]);
}

float rateAt(double done, float highest) {
    const double share = done < risingShare ? done / risingShare : (1 - done) / (1 - risingShare);
    return highest * static_cast<float>(std::clamp(share, 0.01, 1.0));
}

/// Counts names, which are runs of labels.
struct NameCount {
    std::size_t right = 0, system = 0, gold = 0;

    void add(std::span<const std::uint8_t> found, std::span<const std::uint8_t> wanted) {
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            const bool begins = beginsName(static_cast<NameLabel>(wanted[i]));
            gold += begins;
            system += beginsName(static_cast<NameLabel>(found[i]));
            if (!begins || found[i] != wanted[i]) continue;
            std::size_t end = i + 1;
            while (end < wanted.size() && wanted[end] == wanted[i] + 1 && found[end] == wanted[end])
                ++end;
            const auto goesOn = [&](std::span<const std::uint8_t> labels) {
                return end < labels.size() && labels[end] == wanted[i] + 1;
            };
            right += !goesOn(found) && !goesOn(wanted);
        }
    }
    [[nodiscard]] double f1() const {
        return right == 0 ? 0 : 200.0 * static_cast<double>(right) / static_cast<double>(system + gold);
    }
};

} // namespace

void train(Network& network, const Lessons& lessons, std::span<const SeenForm> forms,
           const TrainingPlan& plan, const std::function<void(int, double)>& report) {
    std::mt19937 random(plan.seed);
    for (int epoch = 0; epoch < plan.epochs; ++epoch) {
        std::vector<const Example*> order = lessons.always;
        for (std::size_t i = static_cast<std::size_t>(epoch) % plan.turns; i < lessons.sometimes.size();
             i += plan.turns)
            order.push_back(lessons.sometimes[i]);
        shuffle(order, random);
        double loss = 0, seen = 0;
        std::size_t batches = 0;
        for (const Network::Batch batch : Batches(order, plan.batchWords)) {
            loss += network.learn(batch, forms, plan.noise, plan.weights, random);
            ++batches;
            seen += static_cast<double>(batch.size()) / static_cast<double>(order.size());
            const double done = (epoch + seen) / plan.epochs;
            network.step({rateAt(done, plan.rate), plan.bound});
        }
        report(epoch + 1, loss / static_cast<double>(std::max<std::size_t>(batches, 1)));
    }
}

Scores scoresOf(std::span<const Example> examples,
                const std::function<Network::Labels(const Example&)>& label) {
    std::size_t right = 0, all = 0;
    NameCount names;
    for (const Example& example : examples) {
        const Network::Labels labels = label(example);
        for (std::size_t i = 0; i < example.pos.size(); ++i, ++all)
            right += labels.pos[i] == example.pos[i];
        if (!example.names.empty()) names.add(labels.names, example.names);
    }
    return {all == 0 ? 0 : 100.0 * static_cast<double>(right) / static_cast<double>(all), names.f1()};
}

} // namespace lexiform::train
