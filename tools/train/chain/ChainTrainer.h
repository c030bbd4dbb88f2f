#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <vector>

namespace lexiform::train {

/// A sentence as the trainer sees it: numbers only.
struct ChainSentence {
    std::vector<std::uint32_t> features;   ///< of all words, one word after the other
    std::vector<std::uint32_t> ends;       ///< for each word the end of its features
    std::vector<std::uint8_t> transitions; ///< for each word the class that its transitions depend on
    std::vector<std::uint8_t> labels;      ///< the right ones
    float weight = 1;                      ///< how much the sentence counts

    [[nodiscard]] std::size_t size() const { return labels.size(); }
    [[nodiscard]] std::span<const std::uint32_t> featuresOf(std::size_t word) const {
        const std::size_t start = word == 0 ? 0 : ends[word - 1];
        return std::span(features).subspan(start, ends[word] - start);
    }
};

/// How a model is trained.
struct ChainOptions {
    int epochs = 10;
    float rate = 0.15F;
    /// The strength of the pull towards zero, which keeps the model sparse.
    float shrinkage = 0.0F;
    /// The share of a word's features that is hidden at each step, so that none is relied on alone.
    float dropout = 0.0F;
    std::uint64_t seed = 1;
};

/// Trains a linear-chain conditional random field over `L` labels (Lafferty, McCallum and Pereira 2001)
/// by stochastic gradient descent with a rate per weight (Duchi, Hazan and Singer 2011, "Adaptive
/// subgradient methods"), the weights averaged over the last epochs. The same data, options and seed
/// give the same weights.
template <std::size_t L>
class ChainTrainer {
public:
    using Row = std::array<float, L>;
    using Matrix = std::array<Row, L>;

    /// A label that may not follow another is said so by `forbidden`.
    ChainTrainer(std::size_t featureCount, std::size_t transitionClasses,
                 bool (*forbidden)(std::size_t, std::size_t))
        : weights_(featureCount), squares_(featureCount), sums_(featureCount), classes_(transitionClasses),
          classSquares_(transitionClasses), classSums_(transitionClasses), forbidden_(forbidden) {}

    /// Calls `report(epoch)` after each epoch.
    template <typename Report>
    void train(std::vector<ChainSentence>& sentences, const ChainOptions& options, Report report) {
        options_ = options;
        random_.seed(options.seed);
        std::vector<std::size_t> order(sentences.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        for (int epoch = 0; epoch < options.epochs; ++epoch) {
            shuffle(order);
            for (const std::size_t i : order)
                step(sentences[i]);
            if (2 * epoch >= options.epochs) accumulate();
            report(epoch);
        }
        average();
    }

    [[nodiscard]] const std::vector<Row>& weights() const { return weights_; }
    /// By transition class, then previous label; row `L` is the start of a sentence.
    [[nodiscard]] const std::vector<std::array<Row, L + 1>>& transitions() const { return classes_; }

private:
    // std::shuffle differs between libraries; this does not.
    void shuffle(std::vector<std::size_t>& order) {
        for (std::size_t i = order.size(); i > 1; --i)
            std::swap(order[i - 1], order[random_() % i]);
    }

    void step(const ChainSentence& sentence) {
        chooseFeatures(sentence);
        score(sentence);
        forward(sentence);
        backwardAndUpdate(sentence);
    }

    void chooseFeatures(const ChainSentence& sentence) {
        const auto limit = static_cast<std::uint32_t>(options_.dropout * 65536.0F);
        active_.clear();
        activeEnds_.clear();
        std::uint64_t bits = 0;
        for (std::size_t i = 0, n = 0; i < sentence.size(); ++i) {
            for (const std::uint32_t feature : sentence.featuresOf(i)) {
                if (n++ % 4 == 0) bits = random_();
                if ((bits & 0xFFFF) >= limit) active_.push_back(feature);
                bits >>= 16;
            }
            activeEnds_.push_back(active_.size());
        }
        scale_ = 1 / (1 - options_.dropout);
    }

    std::span<const std::uint32_t> activeAt(std::size_t i) const {
        const std::size_t start = i == 0 ? 0 : activeEnds_[i - 1];
        return std::span(active_).subspan(start, activeEnds_[i] - start);
    }

    void score(const ChainSentence& sentence) {
        emissions_.assign(sentence.size(), Row{});
        for (std::size_t i = 0; i < sentence.size(); ++i) {
            Row& row = emissions_[i];
            for (const std::uint32_t feature : activeAt(i))
                for (std::size_t label = 0; label < L; ++label)
                    row[label] += weights_[feature][label];
            float highest = -1e30F;
            for (float& value : row) {
                value *= scale_;
                highest = std::max(highest, value);
            }
            for (float& value : row)
                value = std::exp(value - highest);
        }
    }

    // Probabilities, scaled to sum to one at each word.
    void forward(const ChainSentence& sentence) {
        forward_.assign(sentence.size(), Row{});
        steps_.resize(sentence.size());
        for (std::size_t i = 0; i < sentence.size(); ++i) {
            const auto& weights = classes_[sentence.transitions[i]];
            Row& next = forward_[i];
            if (i == 0) {
                for (std::size_t label = 0; label < L; ++label)
                    next[label] = forbidden_(L, label) ? 0 : std::exp(weights[L][label]);
            } else {
                for (std::size_t previous = 0; previous < L; ++previous)
                    for (std::size_t label = 0; label < L; ++label) {
                        const float factor =
                            forbidden_(previous, label) ? 0 : std::exp(weights[previous][label]);
                        steps_[i][previous][label] = factor;
                        next[label] += forward_[i - 1][previous] * factor;
                    }
            }
            for (std::size_t label = 0; label < L; ++label)
                next[label] *= emissions_[i][label];
            normalise(next);
        }
    }

    static void normalise(Row& row) {
        float sum = 1e-30F;
        for (const float value : row)
            sum += value;
        for (float& value : row)
            value /= sum;
    }

    void backwardAndUpdate(const ChainSentence& sentence) {
        Row backward;
        backward.fill(1);
        for (std::size_t i = sentence.size(); i-- > 0;) {
            Row marginal;
            for (std::size_t label = 0; label < L; ++label)
                marginal[label] = forward_[i][label] * backward[label];
            normalise(marginal);
            updateWord(sentence, i, marginal);
            Row ahead;
            for (std::size_t label = 0; label < L; ++label)
                ahead[label] = emissions_[i][label] * backward[label];
            if (i == 0) {
                updateStart(sentence, marginal);
                return;
            }
            updateStep(sentence, i, ahead);
            for (std::size_t previous = 0; previous < L; ++previous) {
                backward[previous] = 0;
                for (std::size_t label = 0; label < L; ++label)
                    backward[previous] += steps_[i][previous][label] * ahead[label];
            }
            normalise(backward);
        }
    }

    void descend(float& weight, float& square, float gradient) const {
        square += gradient * gradient;
        const float rate = options_.rate / std::sqrt(square + 1e-4F);
        const float moved = weight - rate * gradient;
        const float pull = rate * options_.shrinkage;
        weight = moved > pull ? moved - pull : moved < -pull ? moved + pull : 0;
    }

    void descend(Row& weights, Row& squares, const Row& gradients) const {
        for (std::size_t label = 0; label < L; ++label)
            descend(weights[label], squares[label], gradients[label]);
    }

    void updateWord(const ChainSentence& sentence, std::size_t i, const Row& marginal) {
        Row gradient = marginal;
        gradient[sentence.labels[i]] -= 1;
        for (float& value : gradient)
            value *= sentence.weight;
        for (const std::uint32_t feature : activeAt(i))
            descend(weights_[feature], squares_[feature], gradient);
    }

    void updateStart(const ChainSentence& sentence, const Row& marginal) {
        Row gradient = marginal;
        gradient[sentence.labels[0]] -= 1;
        for (float& value : gradient)
            value *= sentence.weight;
        const std::size_t kind = sentence.transitions[0];
        descend(classes_[kind][L], classSquares_[kind][L], gradient);
    }

    void updateStep(const ChainSentence& sentence, std::size_t i, const Row& ahead) {
        Matrix pairs;
        float sum = 1e-30F;
        for (std::size_t previous = 0; previous < L; ++previous)
            for (std::size_t label = 0; label < L; ++label)
                sum += pairs[previous][label] =
                    forward_[i - 1][previous] * steps_[i][previous][label] * ahead[label];
        const std::size_t kind = sentence.transitions[i];
        const float factor = sentence.weight / sum;
        for (std::size_t previous = 0; previous < L; ++previous) {
            for (float& value : pairs[previous])
                value *= factor;
            if (previous == sentence.labels[i - 1]) pairs[previous][sentence.labels[i]] -= sentence.weight;
            descend(classes_[kind][previous], classSquares_[kind][previous], pairs[previous]);
        }
    }

    template <typename Rows>
    static void addTo(Rows& sums, const Rows& values) {
        for (std::size_t i = 0; i < sums.size(); ++i)
            for (std::size_t label = 0; label < sums[i].size(); ++label) {
                if constexpr (std::is_same_v<std::decay_t<decltype(sums[i][label])>, float>)
                    sums[i][label] += values[i][label];
                else
                    for (std::size_t next = 0; next < L; ++next)
                        sums[i][label][next] += values[i][label][next];
            }
    }

    void accumulate() {
        addTo(sums_, weights_);
        addTo(classSums_, classes_);
        ++summed_;
    }

    void average() {
        const float share = 1.0F / static_cast<float>(std::max(summed_, 1));
        for (std::size_t i = 0; i < weights_.size(); ++i)
            for (std::size_t label = 0; label < L; ++label)
                weights_[i][label] = sums_[i][label] * share;
        for (std::size_t i = 0; i < classes_.size(); ++i)
            for (std::size_t previous = 0; previous <= L; ++previous)
                for (std::size_t label = 0; label < L; ++label)
                    classes_[i][previous][label] = classSums_[i][previous][label] * share;
    }

    using Transitions = std::array<Row, L + 1>;

    std::vector<Row> weights_, squares_, sums_;
    std::vector<Transitions> classes_, classSquares_, classSums_;
    bool (*forbidden_)(std::size_t, std::size_t);
    int summed_ = 0;
    ChainOptions options_;
    std::mt19937_64 random_;
    float scale_ = 1;
    std::vector<std::uint32_t> active_;
    std::vector<std::size_t> activeEnds_;
    std::vector<Row> emissions_, forward_;
    std::vector<Matrix> steps_;
};

} // namespace lexiform::train
