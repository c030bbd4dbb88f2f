#pragma once

#include "linguistics/text/UniversalPos.h"
#include "tools/train/chain/ChainSentence.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace lexiform::train {

/// The weights of a chain over parts of speech: for each feature, and for each label after another. They move
/// down a gradient with a rate per weight (Duchi, Hazan and Singer 2011, "Adaptive subgradient methods").
class ChainWeights {
public:
    static constexpr std::size_t labels = linguistics::universalPosCount;
    using Row = std::array<float, labels>;
    /// By previous label; row `labels` is the start of a sentence.
    using Transitions = std::array<Row, labels + 1>;

    ChainWeights(std::size_t featureCount, std::size_t transitionClasses)
        : features_(featureCount), classes_(transitionClasses) {}

    [[nodiscard]] const std::vector<Row>& features() const { return features_.values; }
    [[nodiscard]] const std::vector<Transitions>& transitions() const { return classes_.values; }

    /// Moves the weights of `feature` against `gradient`, and towards zero.
    void moveFeature(std::uint32_t feature, const Row& gradient, const ChainOptions& options);
    /// The same for what follows `previous` in a class of transitions.
    void moveTransition(std::size_t transitionClass, std::size_t previous, const Row& gradient,
                        const ChainOptions& options);

    /// Notes the weights as they are.
    void note();
    /// Replaces the weights by the mean of those noted.
    void average();

private:
    template <typename Value>
    struct Averaged {
        explicit Averaged(std::size_t count) : values(count), squares(count), sums(count) {}
        std::vector<Value> values;
        std::vector<Value> squares; ///< of the gradients so far
        std::vector<Value> sums;    ///< of the values noted
    };

    Averaged<Row> features_;
    Averaged<Transitions> classes_;
    int noted_ = 0;
};

} // namespace lexiform::train
