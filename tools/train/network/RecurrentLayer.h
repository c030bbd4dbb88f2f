#pragma once

#include "tools/train/network/Matrix.h"
#include "tools/train/network/Parameters.h"

#include <cstddef>
#include <random>
#include <vector>

namespace lexiform::train {

/// The places of a batch: sentences one after the other, each between two boundaries. `isBoundary` has an
/// element for each place, true for the first and the last.
using Boundaries = std::vector<char>;

/// A bidirectional quasi-recurrent layer (Bradbury et al. 2017, "Quasi-recurrent neural networks";
/// fo-pooling) with piecewise linear gates, as the engine computes them in integers.
///
/// At each place and for each unit of a direction a candidate z, an update gate u and an output gate o come
/// from the inputs of `reach` places on either side; the state is c = c' + u (z - c'), c' being the one
/// before, and the output o c. Gates lie in columns by direction: all z, all u, all o of the forward
/// direction, then those of the backward one. At boundaries state and output are zero.
class RecurrentLayer {
public:
    /// `inputs` numbers a place come in, 2 `units` go out; both are multiples of 8.
    RecurrentLayer(std::size_t inputs, std::size_t units, std::size_t reach, Parameters& parameters,
                   std::mt19937& random);

    /// The outputs of each place; they and what `backward` needs are kept in the layer. `input` has
    /// `reach` rows of zeros before its first place and after its last, and must outlive the backward pass.
    const Matrix& forward(const Matrix& input, const Boundaries& isBoundary);

    /// Given the loss's gradient by the last outputs, adds its gradient by the parameters to theirs and gives
    /// that by the inputs, laid out like them, in `inputGradient`.
    void backward(const Matrix& outputGradient, Matrix& inputGradient);

    [[nodiscard]] const Matrix& weights() const { return weights_->value; }
    [[nodiscard]] const Matrix& bias() const { return bias_->value; }

private:
    void runForward(std::size_t direction);
    void runBackward(std::size_t direction, const Matrix& outputGradient);
    [[nodiscard]] std::size_t window() const { return inputs_ * (2 * reach_ + 1); }

    std::size_t inputs_, units_, reach_;
    Parameter* weights_; ///< by place in the window and input; a column for each gate
    Parameter* bias_;
    const Matrix* input_ = nullptr;
    const Boundaries* isBoundary_ = nullptr;
    Matrix gates_;        ///< before their bounds
    Matrix gateGradient_; ///< by the gates before their bounds
    Matrix states_;       ///< by place, both directions
    Matrix outputs_;
};

} // namespace lexiform::train
