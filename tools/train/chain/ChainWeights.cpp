#include "tools/train/chain/ChainWeights.h"

#include <algorithm>
#include <cmath>

namespace lexiform::train {

namespace {

using Row = ChainWeights::Row;

void move(float& weight, float& square, float gradient, const ChainOptions& options) {
    square += gradient * gradient;
    const float rate = options.rate / std::sqrt(square + 1e-4F);
    const float moved = weight - rate * gradient;
    const float pull = rate * options.shrinkage;
    weight = moved > pull ? moved - pull : moved < -pull ? moved + pull : 0;
}

void move(Row& weights, Row& squares, const Row& gradient, const ChainOptions& options) {
    for (std::size_t label = 0; label < weights.size(); ++label)
        move(weights[label], squares[label], gradient[label], options);
}

void add(Row& sums, const Row& values) {
    for (std::size_t label = 0; label < sums.size(); ++label)
        sums[label] += values[label];
}

void scale(Row& values, const Row& sums, float share) {
    for (std::size_t label = 0; label < values.size(); ++label)
        values[label] = sums[label] * share;
}

} // namespace

void ChainWeights::moveFeature(std::uint32_t feature, const Row& gradient, const ChainOptions& options) {
    move(features_.values[feature], features_.squares[feature], gradient, options);
}

void ChainWeights::moveTransition(std::size_t transitionClass, std::size_t previous, const Row& gradient,
                                  const ChainOptions& options) {
    move(classes_.values[transitionClass][previous], classes_.squares[transitionClass][previous], gradient,
         options);
}

void ChainWeights::note() {
    for (std::size_t i = 0; i < features_.values.size(); ++i)
        add(features_.sums[i], features_.values[i]);
    for (std::size_t i = 0; i < classes_.values.size(); ++i)
        for (std::size_t previous = 0; previous <= labels; ++previous)
            add(classes_.sums[i][previous], classes_.values[i][previous]);
    ++noted_;
}

void ChainWeights::average() {
    const float share = 1.0F / static_cast<float>(std::max(noted_, 1));
    for (std::size_t i = 0; i < features_.values.size(); ++i)
        scale(features_.values[i], features_.sums[i], share);
    for (std::size_t i = 0; i < classes_.values.size(); ++i)
        for (std::size_t previous = 0; previous <= labels; ++previous)
            scale(classes_.values[i][previous], classes_.sums[i][previous], share);
}

} // namespace lexiform::train
