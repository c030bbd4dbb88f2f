#pragma once

#include "linguistics/network/WordRows.h"
#include "tools/train/network/ChainLoss.h"
#include "tools/train/network/Examples.h"
#include "tools/train/network/RecurrentLayer.h"

#include <cstddef>
#include <memory>
#include <random>
#include <span>
#include <vector>

namespace lexiform::train {

/// How large a network is.
struct NetworkShape {
    linguistics::RowLayout layout;
    std::size_t width = 64; ///< numbers in a row
    std::size_t units = 64; ///< of a direction
    std::size_t layers = 1;
    std::size_t fineLabels = 1;
    std::size_t featureLabels = 1;
};

/// What is left out at random while learning, as shares of one, and how losses count.
struct Noise {
    float words = 0;   ///< words made unknown: this over itself plus how often the word is met
    float inputs = 0;  ///< numbers of the words' sums
    float outputs = 0; ///< numbers of a layer's outputs
};

/// How much the losses of the several labels count.
struct LossWeights {
    float pos = 1, names = 1, fine = 0.5F, features = 0.3F;
    float softPos = 1, softNames = 1;
};

/// How a form is seen: its rows, and how often it is met in the annotated texts.
struct SeenForm {
    linguistics::WordRows rows;
    std::uint32_t count = 0;
};

/// A recurrent tagger in floating point: the sum of a word's rows, recurrent layers, and on their outputs
/// heads for parts of speech, names, and in training for the corpora's own tags and features (Plank, Søgaard
/// and Goldberg 2016, "Multilingual part-of-speech tagging with bidirectional long short-term memory models
/// and auxiliary loss").
class Network {
public:
    Network(const NetworkShape& shape, std::uint32_t seed);

    using Batch = std::span<const Example* const>;

    /// Adds the gradients of a batch's losses; gives their mean for a word.
    double learn(Batch batch, std::span<const SeenForm> forms, const Noise& noise, const LossWeights& weights,
                 std::mt19937& random);
    /// Moves all parameters against their gradients, and sets those to zero.
    void step(Step step);

    /// The likelihoods of an example's labels, a number for each label of each word.
    struct Likelihoods {
        std::vector<float> pos, names;
    };
    [[nodiscard]] std::vector<Likelihoods> likelihoods(Batch batch, std::span<const SeenForm> forms);

    /// The best labels of an example's words.
    struct Labels {
        std::vector<std::uint8_t> pos, names;
    };
    [[nodiscard]] std::vector<Labels> best(Batch batch, std::span<const SeenForm> forms);

    [[nodiscard]] const NetworkShape& shape() const { return shape_; }
    [[nodiscard]] RowParameters& rows() { return rows_; }
    [[nodiscard]] const RecurrentLayer& layer(std::size_t index) const { return *layers_[index]; }
    /// By output of the last layer; the columns are the labels, parts of speech first, then names.
    [[nodiscard]] const Matrix& headWeights() const { return headWeights_->value; }
    [[nodiscard]] const Matrix& headBias() const { return headBias_->value; }
    [[nodiscard]] const ChainLoss& posChain() const { return *posChain_; }
    [[nodiscard]] const ChainLoss& nameChain() const { return *nameChain_; }

    Parameters& parameters() { return parameters_; }

private:
    void place(Batch batch);
    void seeWords(Batch batch, std::span<const SeenForm> forms, const Noise& noise, std::mt19937* random);
    void forward(Batch batch, std::span<const SeenForm> forms, const Noise& noise, std::mt19937* random);
    void backward();
    [[nodiscard]] ChainLoss::Emissions scoresOf(std::size_t sentence, std::size_t column) const;
    double addLosses(Batch batch, const LossWeights& weights);
    double addLabelLoss(std::size_t sentence, std::span<const std::uint16_t> labels, std::size_t column,
                        std::size_t count, float weight);
    [[nodiscard]] std::size_t fineColumn() const;
    [[nodiscard]] std::size_t featureColumn() const;

    NetworkShape shape_;
    std::mt19937 random_; ///< for the first values
    RowParameters rows_;
    Parameters parameters_;
    std::vector<std::unique_ptr<RecurrentLayer>> layers_;
    Parameter* headWeights_;
    Parameter* headBias_;
    std::unique_ptr<ChainLoss> posChain_, nameChain_;

    // Of the batch at hand.
    Boundaries boundaries_;
    std::vector<std::size_t> starts_, lengths_; ///< of the sentences
    std::vector<linguistics::WordRows> seen_;   ///< the rows of each place
    std::vector<Matrix> inputs_;                ///< of each layer, then of the heads
    std::vector<Matrix> masks_;                 ///< what the inputs were multiplied with; empty for 1
    Matrix scores_, scoreGradient_;
};

} // namespace lexiform::train
