#include "tools/train/network/ChainLoss.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lexiform::train {

namespace {

// Divides `values` by their sum, and gives it.
float normalise(float* values, std::size_t count) {
    float sum = 0;
    for (std::size_t i = 0; i < count; ++i)
        sum += values[i];
    sum = std::max(sum, std::numeric_limits<float>::min());
    for (std::size_t i = 0; i < count; ++i)
        values[i] /= sum;
    return sum;
}

} // namespace

ChainLoss::ChainLoss(std::size_t labels, MayFollow mayFollow, Parameters& parameters, std::mt19937& random)
    : labels_(labels), mayFollow_(mayFollow), transitions_(parameters.add(labels + 1, labels, 0, random)) {}

void ChainLoss::exponentiate(Emissions scores) {
    steps_.assign((labels_ + 1) * labels_, 0.0F);
    for (std::size_t previous = 0; previous <= labels_; ++previous)
        for (std::size_t next = 0; next < labels_; ++next)
            if (allowed(previous, next))
                steps_[previous * labels_ + next] = std::exp(transitions_->value.row(previous)[next]);
    emissions_.resize(scores.places * labels_);
    logarithm_ = 0;
    for (std::size_t place = 0; place < scores.places; ++place) {
        const float* row = scores.values + place * scores.step;
        const float highest = *std::max_element(row, row + labels_);
        for (std::size_t label = 0; label < labels_; ++label)
            emissions_[place * labels_ + label] = std::exp(row[label] - highest);
        logarithm_ += static_cast<double>(highest);
    }
}

void ChainLoss::runForward(std::size_t places) {
    forward_.assign(places * labels_, 0.0F);
    for (std::size_t place = 0; place < places; ++place) {
        float* row = forward_.data() + place * labels_;
        if (place == 0) {
            std::copy_n(steps_.data() + labels_ * labels_, labels_, row);
        } else {
            const float* before = row - labels_;
            for (std::size_t previous = 0; previous < labels_; ++previous)
                for (std::size_t label = 0; label < labels_; ++label)
                    row[label] += before[previous] * steps_[previous * labels_ + label];
        }
        for (std::size_t label = 0; label < labels_; ++label)
            row[label] *= emissions_[place * labels_ + label];
        logarithm_ += std::log(static_cast<double>(normalise(row, labels_)));
    }
}

void ChainLoss::runBackward(std::size_t places) {
    backward_.assign(places * labels_, 1.0F);
    std::vector<float> after(labels_);
    for (std::size_t place = places - 1; place > 0; --place) {
        for (std::size_t label = 0; label < labels_; ++label)
            after[label] = backward_[place * labels_ + label] * emissions_[place * labels_ + label];
        float* row = backward_.data() + (place - 1) * labels_;
        for (std::size_t previous = 0; previous < labels_; ++previous) {
            float sum = 0;
            for (std::size_t label = 0; label < labels_; ++label)
                sum += steps_[previous * labels_ + label] * after[label];
            row[previous] = sum;
        }
        normalise(row, labels_);
    }
}

std::span<const float> ChainLoss::likelihoods(Emissions scores) {
    if (scores.places == 0) return {};
    exponentiate(scores);
    runForward(scores.places);
    runBackward(scores.places);
    likelihoods_.resize(scores.places * labels_);
    for (std::size_t i = 0; i < likelihoods_.size(); ++i)
        likelihoods_[i] = forward_[i] * backward_[i];
    for (std::size_t place = 0; place < scores.places; ++place)
        normalise(likelihoods_.data() + place * labels_, labels_);
    return likelihoods_;
}

void ChainLoss::addTransitionGradient(std::span<const std::uint8_t> gold, float weight) {
    std::vector<float> pairs(labels_ * labels_);
    for (std::size_t place = 0; place < gold.size(); ++place) {
        const std::size_t previousGold = place == 0 ? labels_ : gold[place - 1];
        transitions_->gradient.row(previousGold)[gold[place]] -= weight;
        const float* likely = likelihoods_.data() + place * labels_;
        if (place == 0) {
            for (std::size_t label = 0; label < labels_; ++label)
                transitions_->gradient.row(labels_)[label] += weight * likely[label];
            continue;
        }
        const float* before = forward_.data() + (place - 1) * labels_;
        for (std::size_t previous = 0; previous < labels_; ++previous)
            for (std::size_t label = 0; label < labels_; ++label)
                pairs[previous * labels_ + label] = before[previous] * steps_[previous * labels_ + label] *
                                                    emissions_[place * labels_ + label] *
                                                    backward_[place * labels_ + label];
        normalise(pairs.data(), pairs.size());
        for (std::size_t i = 0; i < pairs.size(); ++i)
            transitions_->gradient.row(0)[i] += weight * pairs[i];
    }
}

double ChainLoss::lossOf(Emissions scores, std::span<const std::uint8_t> gold) const {
    double score = 0;
    for (std::size_t place = 0; place < gold.size(); ++place) {
        const std::size_t previous = place == 0 ? labels_ : gold[place - 1];
        score += static_cast<double>(scores.values[place * scores.step + gold[place]]) +
                 static_cast<double>(transitions_->value.row(previous)[gold[place]]);
    }
    return logarithm_ - score;
}

double ChainLoss::addGradient(Emissions scores, std::span<const std::uint8_t> gold, float weight,
                              float* gradient) {
    const auto likely = likelihoods(scores);
    for (std::size_t place = 0; place < scores.places; ++place) {
        for (std::size_t label = 0; label < labels_; ++label)
            gradient[place * scores.step + label] += weight * likely[place * labels_ + label];
        gradient[place * scores.step + gold[place]] -= weight;
    }
    addTransitionGradient(gold, weight);
    return static_cast<double>(weight) * lossOf(scores, gold);
}

double ChainLoss::addSoftGradient(Emissions scores, std::span<const float> likely, float weight,
                                  float* gradient) {
    const auto own = likelihoods(scores);
    double loss = 0;
    for (std::size_t place = 0; place < scores.places; ++place)
        for (std::size_t label = 0; label < labels_; ++label) {
            const std::size_t i = place * labels_ + label;
            gradient[place * scores.step + label] += weight * (own[i] - likely[i]);
            loss -= static_cast<double>(likely[i] * std::log(std::max(own[i], 1e-9F)));
        }
    return static_cast<double>(weight) * loss;
}

std::vector<std::uint8_t> ChainLoss::best(Emissions scores) const {
    constexpr float never = -1e9F;
    std::vector<float> totals(scores.places * labels_, never);
    std::vector<std::uint8_t> from(scores.places * labels_, 0), labels(scores.places);
    for (std::size_t place = 0; place < scores.places; ++place)
        for (std::size_t label = 0; label < labels_; ++label) {
            float& total = totals[place * labels_ + label];
            for (std::size_t previous = place == 0 ? labels_ : 0; previous <= labels_; ++previous) {
                if ((place > 0 && previous == labels_) || !allowed(previous, label)) continue;
                const float before = place == 0 ? 0 : totals[(place - 1) * labels_ + previous];
                const float score = before + transitions_->value.row(previous)[label];
                if (score <= total) continue;
                total = score;
                from[place * labels_ + label] = static_cast<std::uint8_t>(previous);
            }
            total += scores.values[place * scores.step + label];
        }
    for (std::size_t place = scores.places; place-- > 0;) {
        const auto row = totals.begin() + static_cast<std::ptrdiff_t>(place * labels_);
        labels[place] = place + 1 == scores.places
                            ? static_cast<std::uint8_t>(
                                  std::max_element(row, row + static_cast<std::ptrdiff_t>(labels_)) - row)
                            : from[(place + 1) * labels_ + labels[place + 1]];
    }
    return labels;
}

} // namespace lexiform::train
