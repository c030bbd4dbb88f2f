#pragma once

#include "tools/train/network/Matrix.h"
#include "tools/train/network/Parameters.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lexiform::train {

/// The labels of one kind as a linear chain (Lafferty, McCallum and Pereira 2001, "Conditional random
/// fields") over the scores that a network gives them: the loss's gradients, how likely each label is, and
/// the best sequence.
class ChainLoss {
public:
    using MayFollow = bool (*)(std::size_t previous, std::size_t next);

    /// `mayFollow` tells which labels may follow one another; `previous` is `labels` at a sentence's start.
    ChainLoss(std::size_t labels, MayFollow mayFollow, Parameters& parameters, std::mt19937& random);

    /// Emissions of the labels of consecutive places; `step` numbers lie from one place to the next.
    struct Emissions {
        const float* values;
        std::size_t step;
        std::size_t places;
    };

    /// Adds the gradient of `weight` times the negative logarithm of the likelihood of `gold` by the scores
    /// to `gradient`, laid out like them, and by the transitions to theirs. Gives that loss.
    double addGradient(Emissions scores, std::span<const std::uint8_t> gold, float weight, float* gradient);
    /// The same for labels that are only likely to some degree: `likely` holds for each place a number for
    /// each label. The gradient is that of the distance from the chain that they come from; of the
    /// transitions nothing is learned. Gives the places' cross-entropies, which are that loss where
    /// transitions are even.
    double addSoftGradient(Emissions scores, std::span<const float> likely, float weight, float* gradient);

    /// How likely each label is at each place.
    [[nodiscard]] std::span<const float> likelihoods(Emissions scores);
    /// The best sequence of labels.
    [[nodiscard]] std::vector<std::uint8_t> best(Emissions scores) const;

    [[nodiscard]] std::size_t labels() const { return labels_; }
    /// By previous label, the start last; a column for each label.
    [[nodiscard]] const Matrix& transitions() const { return transitions_->value; }

private:
    [[nodiscard]] bool allowed(std::size_t previous, std::size_t next) const {
        return mayFollow_(previous, next);
    }
    void exponentiate(Emissions scores);
    void runForward(std::size_t places);
    void runBackward(std::size_t places);
    void addTransitionGradient(std::span<const std::uint8_t> gold, float weight);
    [[nodiscard]] double lossOf(Emissions scores, std::span<const std::uint8_t> gold) const;

    std::size_t labels_;
    MayFollow mayFollow_;
    Parameter* transitions_;
    std::vector<float> steps_;     ///< the exponentials of the transitions; 0 where forbidden
    std::vector<float> emissions_; ///< those of the scores less their highest at the place
    std::vector<float> forward_, backward_, likelihoods_;
    double logarithm_ = 0; ///< of the sum over all sequences
};

} // namespace lexiform::train
