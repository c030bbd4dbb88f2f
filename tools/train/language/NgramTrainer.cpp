#include "tools/train/language/NgramTrainer.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <unordered_map>
#include <utility>

namespace lexiform::train {

namespace {

constexpr std::uint32_t fewestTexts = 6;  // in which a feature must occur
constexpr std::size_t mostOfFeature = 12; // weights
constexpr int roundsOverAll = 3;
constexpr int roundsOverKept = 2;
constexpr float learningRate = 0.15F;
constexpr float regularisation = 2e-5F;

using Index = std::unordered_map<std::uint64_t, std::uint32_t>;

void makeUnique(std::vector<std::uint64_t>& features) {
    std::sort(features.begin(), features.end());
    features.erase(std::unique(features.begin(), features.end()), features.end());
}

Index frequentFeatures(const std::vector<NgramExample>& examples) {
    Index counts;
    std::vector<std::uint64_t> unique;
    for (const NgramExample& example : examples) {
        unique = example.features;
        makeUnique(unique);
        for (const std::uint64_t feature : unique)
            ++counts[feature];
    }
    std::erase_if(counts, [](const auto& entry) { return entry.second < fewestTexts; });
    return counts;
}

/// How much each feature tells of the language: the weighted pointwise mutual information with the
/// language that it speaks for most.
class FeatureChoice {
public:
    FeatureChoice(const std::vector<NgramExample>& examples, std::size_t languages)
        : languages_(languages), texts_(languages, 0) {
        count(examples);
    }

    [[nodiscard]] Index best(std::size_t most) const {
        std::vector<std::pair<double, std::uint64_t>> ranked;
        for (const auto& [feature, row] : rows_)
            ranked.emplace_back(-worthOf(row), feature);
        std::sort(ranked.begin(), ranked.end());
        ranked.resize(std::min(most, ranked.size()));
        Index chosen;
        for (std::uint32_t i = 0; i < ranked.size(); ++i)
            chosen.emplace(ranked[i].second, i);
        return chosen;
    }

private:
    void count(const std::vector<NgramExample>& examples) {
        std::uint32_t next = 0;
        for (const auto& entry : frequentFeatures(examples))
            rows_.emplace(entry.first, next++);
        counts_.assign(rows_.size() * languages_, 0);
        std::vector<std::uint64_t> unique;
        for (const NgramExample& example : examples) {
            ++texts_[example.language];
            unique = example.features;
            makeUnique(unique);
            for (const std::uint64_t feature : unique)
                if (const auto row = rows_.find(feature); row != rows_.end())
                    ++counts_[row->second * languages_ + example.language];
        }
    }

    // Languages count alike, however many texts they have.
    [[nodiscard]] double worthOf(std::uint32_t row) const {
        double total = 0;
        std::vector<double> shares(languages_);
        for (std::size_t i = 0; i < languages_; ++i) {
            shares[i] = counts_[row * languages_ + i] / std::max(1.0, static_cast<double>(texts_[i]));
            total += shares[i];
        }
        double worth = 0;
        for (const double share : shares)
            if (share > 0)
                worth += share * std::abs(std::log(share * static_cast<double>(languages_) / total));
        return worth;
    }

    std::size_t languages_;
    std::vector<std::uint32_t> texts_;
    Index rows_;
    std::vector<std::uint32_t> counts_;
};

struct CompactExample {
    std::vector<std::uint32_t> features;
    std::uint8_t language = 0;
};

class Regression {
public:
    Regression(std::size_t features, std::size_t languages)
        : languages_(languages), weights_(features * languages, 0), squares_(features * languages, 1e-4F),
          isKept_(features * languages, true) {}

    // Gives the share of examples that were told right before their step.
    double round(std::vector<CompactExample>& examples, std::mt19937_64& random) {
        for (std::size_t i = examples.size(); i > 1; --i)
            std::swap(examples[i - 1], examples[random() % i]);
        std::size_t right = 0;
        for (const CompactExample& example : examples)
            right += step(example);
        return static_cast<double>(right) / static_cast<double>(examples.size());
    }

    // Keeps the largest weights of all, and of each feature no more than cost little to add up.
    void keepLargest(std::size_t most) {
        for (std::size_t row = 0; row < weights_.size(); row += languages_)
            keepLargestOf(row);
        std::vector<float> sizes;
        for (const float weight : weights_)
            if (weight != 0) sizes.push_back(std::abs(weight));
        sizes.resize(std::max(sizes.size(), most + 1));
        std::nth_element(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(most), sizes.end(),
                         std::greater<>());
        const float least = sizes[most];
        for (std::size_t i = 0; i < weights_.size(); ++i) {
            isKept_[i] = std::abs(weights_[i]) > least;
            if (!isKept_[i]) weights_[i] = 0;
        }
    }

    void keepLargestOf(std::size_t row) {
        std::vector<float> sizes;
        for (std::size_t i = row; i < row + languages_; ++i)
            sizes.push_back(std::abs(weights_[i]));
        if (sizes.size() <= mostOfFeature) return;
        std::nth_element(sizes.begin(), sizes.begin() + mostOfFeature, sizes.end(), std::greater<>());
        for (std::size_t i = row; i < row + languages_; ++i)
            if (std::abs(weights_[i]) <= sizes[mostOfFeature]) weights_[i] = 0;
    }

    [[nodiscard]] float weightOf(std::size_t feature, std::size_t language) const {
        return weights_[feature * languages_ + language];
    }

private:
    bool step(const CompactExample& example) {
        scores_.assign(languages_, 0);
        for (const std::uint32_t feature : example.features) {
            const float* row = &weights_[feature * languages_];
            for (std::size_t i = 0; i < languages_; ++i)
                scores_[i] += row[i];
        }
        const auto best = std::max_element(scores_.begin(), scores_.end());
        const bool right = best - scores_.begin() == example.language;
        toProbabilities(*best);
        scores_[example.language] -= 1;
        for (std::size_t i = 0; i < languages_; ++i)
            if (std::abs(scores_[i]) > 1e-3F) move(example, i, scores_[i]);
        return right;
    }

    void toProbabilities(float largest) {
        float total = 0;
        for (float& score : scores_)
            total += score = std::exp(score - largest);
        for (float& score : scores_)
            score /= total;
    }

    void move(const CompactExample& example, std::size_t language, float slope) {
        for (const std::uint32_t feature : example.features) {
            const std::size_t at = feature * languages_ + language;
            if (!isKept_[at]) continue;
            const float gradient = slope + regularisation * weights_[at];
            squares_[at] += gradient * gradient;
            weights_[at] -= learningRate * gradient / std::sqrt(squares_[at] + 1.0F);
        }
    }

    std::size_t languages_;
    std::vector<float> weights_;
    std::vector<float> squares_;
    std::vector<bool> isKept_;
    std::vector<float> scores_;
};

std::vector<CompactExample> compacted(std::vector<NgramExample> examples, const Index& index) {
    std::vector<CompactExample> compact;
    compact.reserve(examples.size());
    for (NgramExample& example : examples) {
        CompactExample next{{}, example.language};
        for (const std::uint64_t feature : example.features)
            if (const auto found = index.find(feature); found != index.end())
                next.features.push_back(found->second);
        example.features = {};
        if (!next.features.empty()) compact.push_back(std::move(next));
    }
    return compact;
}

} // namespace

std::vector<TrainedWeight> trainNgrams(std::vector<NgramExample> examples, const NgramTraining& training,
                                       std::ostream& log) {
    const Index index = FeatureChoice(examples, training.languages).best(training.mostFeatures);
    log << "identification: " << examples.size() << " texts, " << index.size() << " features\n";
    std::vector<CompactExample> compact = compacted(std::move(examples), index);
    Regression regression(index.size(), training.languages);
    std::mt19937_64 random(7);
    for (int round = 0; round < roundsOverAll + roundsOverKept; ++round) {
        if (round == roundsOverAll) regression.keepLargest(training.mostWeights);
        log << "  round " << round + 1 << ": " << 100 * regression.round(compact, random) << " % right\n"
            << std::flush;
    }
    std::vector<TrainedWeight> weights;
    for (const auto& [feature, row] : index)
        for (std::size_t i = 0; i < training.languages; ++i)
            if (const float weight = regression.weightOf(row, i); weight != 0)
                weights.push_back({feature, static_cast<std::uint8_t>(i), weight});
    return weights;
}

} // namespace lexiform::train
