#pragma once

#include "tools/train/chain/ChainSentence.h"
#include "tools/train/chain/ChainWeights.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <span>
#include <vector>

namespace lexiform::train {

/// Trains a linear-chain conditional random field over parts of speech (Lafferty, McCallum and Pereira 2001)
/// by stochastic gradient descent, the weights averaged over the last epochs. The same data, options and
/// seed give the same weights.
class ChainTrainer {
public:
    ChainTrainer(std::size_t featureCount, std::size_t transitionClasses)
        : weights_(featureCount, transitionClasses) {}

    /// Calls `report` with the number of each epoch after it.
    void train(const std::vector<ChainSentence>& sentences, const ChainOptions& options,
               const std::function<void(int)>& report);

    [[nodiscard]] const ChainWeights& weights() const { return weights_; }

private:
    static constexpr std::size_t labels = ChainWeights::labels;
    using Row = ChainWeights::Row;
    using Matrix = std::array<Row, labels>;

    void shuffle(std::vector<std::size_t>& order);
    void step(const ChainSentence& sentence);
    void chooseFeatures(const ChainSentence& sentence);
    [[nodiscard]] std::span<const std::uint32_t> activeAt(std::size_t word) const;
    void score(const ChainSentence& sentence);
    void forward(const ChainSentence& sentence);
    void backwardAndUpdate(const ChainSentence& sentence);
    void updateWord(const ChainSentence& sentence, std::size_t word, const Row& marginal);
    void updateStart(const ChainSentence& sentence, const Row& marginal);
    void updateStep(const ChainSentence& sentence, std::size_t word, const Row& ahead);

    ChainWeights weights_;
    ChainOptions options_;
    std::mt19937_64 random_;
    float scale_ = 1; ///< makes up for the features that are hidden
    // Of the sentence at hand.
    std::vector<std::uint32_t> active_;
    std::vector<std::size_t> activeEnds_;
    std::vector<Row> emissions_, forward_;
    std::vector<Matrix> steps_; ///< for each word but the first, by the label before
};

} // namespace lexiform::train
