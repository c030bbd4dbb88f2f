#include "tools/train/chain/ChainTrainer.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace lexiform::train {

namespace {

void normalise(ChainWeights::Row& row) {
    float sum = 1e-30F;
    for (const float value : row)
        sum += value;
    for (float& value : row)
        value /= sum;
}

// What the loss of one word falls by: how likely each label was, less the right one.
ChainWeights::Row gradientOf(const ChainWeights::Row& marginal, std::uint8_t right, float weight) {
    ChainWeights::Row gradient = marginal;
    gradient[right] -= 1;
    for (float& value : gradient)
        value *= weight;
    return gradient;
}

} // namespace

void ChainTrainer::train(const std::vector<ChainSentence>& sentences, const ChainOptions& options,
                         const std::function<void(int)>& report) {
    options_ = options;
    random_.seed(options.seed);
    std::vector<std::size_t> order(sentences.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (int epoch = 0; epoch < options.epochs; ++epoch) {
        shuffle(order);
        for (const std::size_t i : order)
            step(sentences[i]);
        if (2 * epoch >= options.epochs) weights_.note();
        report(epoch);
    }
    weights_.average();
}

// std::shuffle differs between libraries; this does not.
void ChainTrainer::shuffle(std::vector<std::size_t>& order) {
    for (std::size_t i = order.size(); i > 1; --i)
        std::swap(order[i - 1], order[random_() % i]);
}

void ChainTrainer::step(const ChainSentence& sentence) {
    chooseFeatures(sentence);
    score(sentence);
    forward(sentence);
    backwardAndUpdate(sentence);
}

void ChainTrainer::chooseFeatures(const ChainSentence& sentence) {
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

std::span<const std::uint32_t> ChainTrainer::activeAt(std::size_t word) const {
    const std::size_t start = word == 0 ? 0 : activeEnds_[word - 1];
    return std::span(active_).subspan(start, activeEnds_[word] - start);
}

void ChainTrainer::score(const ChainSentence& sentence) {
    emissions_.assign(sentence.size(), Row{});
    for (std::size_t i = 0; i < sentence.size(); ++i) {
        Row& row = emissions_[i];
        for (const std::uint32_t feature : activeAt(i))
            for (std::size_t label = 0; label < labels; ++label)
                row[label] += weights_.features()[feature][label];
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
void ChainTrainer::forward(const ChainSentence& sentence) {
    forward_.assign(sentence.size(), Row{});
    steps_.resize(sentence.size());
    for (std::size_t i = 0; i < sentence.size(); ++i) {
        const ChainWeights::Transitions& transitions = weights_.transitions()[sentence.transitions[i]];
        Row& next = forward_[i];
        if (i == 0)
            for (std::size_t label = 0; label < labels; ++label)
                next[label] = std::exp(transitions[labels][label]);
        else
            for (std::size_t previous = 0; previous < labels; ++previous)
                for (std::size_t label = 0; label < labels; ++label) {
                    const float factor = std::exp(transitions[previous][label]);
                    steps_[i][previous][label] = factor;
                    next[label] += forward_[i - 1][previous] * factor;
                }
        for (std::size_t label = 0; label < labels; ++label)
            next[label] *= emissions_[i][label];
        normalise(next);
    }
}

void ChainTrainer::backwardAndUpdate(const ChainSentence& sentence) {
    Row backward;
    backward.fill(1);
    for (std::size_t i = sentence.size(); i-- > 0;) {
        Row marginal, ahead;
        for (std::size_t label = 0; label < labels; ++label) {
            marginal[label] = forward_[i][label] * backward[label];
            ahead[label] = emissions_[i][label] * backward[label];
        }
        normalise(marginal);
        updateWord(sentence, i, marginal);
        if (i == 0) return updateStart(sentence, marginal);
        updateStep(sentence, i, ahead);
        for (std::size_t previous = 0; previous < labels; ++previous) {
            backward[previous] = 0;
            for (std::size_t label = 0; label < labels; ++label)
                backward[previous] += steps_[i][previous][label] * ahead[label];
        }
        normalise(backward);
    }
}

void ChainTrainer::updateWord(const ChainSentence& sentence, std::size_t word, const Row& marginal) {
    const Row gradient = gradientOf(marginal, sentence.labels[word], sentence.weight);
    for (const std::uint32_t feature : activeAt(word))
        weights_.moveFeature(feature, gradient, options_);
}

void ChainTrainer::updateStart(const ChainSentence& sentence, const Row& marginal) {
    weights_.moveTransition(sentence.transitions[0], labels,
                            gradientOf(marginal, sentence.labels[0], sentence.weight), options_);
}

void ChainTrainer::updateStep(const ChainSentence& sentence, std::size_t word, const Row& ahead) {
    Matrix pairs;
    float sum = 1e-30F;
    for (std::size_t previous = 0; previous < labels; ++previous)
        for (std::size_t label = 0; label < labels; ++label)
            sum += pairs[previous][label] =
                forward_[word - 1][previous] * steps_[word][previous][label] * ahead[label];
    const float factor = sentence.weight / sum;
    for (std::size_t previous = 0; previous < labels; ++previous) {
        for (float& value : pairs[previous])
            value *= factor;
        if (previous == sentence.labels[word - 1]) pairs[previous][sentence.labels[word]] -= sentence.weight;
        weights_.moveTransition(sentence.transitions[word], previous, pairs[previous], options_);
    }
}

} // namespace lexiform::train
