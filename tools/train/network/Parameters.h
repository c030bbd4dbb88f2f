#pragma once

#include "tools/train/network/Matrix.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <vector>

namespace lexiform::train {

/// Numbers that are learned, and the loss's gradient by them.
struct Parameter {
    Matrix value;
    Matrix gradient;
    Matrix mean, square; ///< of past gradients
};

/// How fast to learn.
struct Step {
    float rate = 0.002F;
    float bound = 1e9F; ///< no value is further from zero afterwards
};

/// Parameters that are all used in every step, and moved by Adam (Kingma and Ba 2015, "Adam: a method for
/// stochastic optimization").
class Parameters {
public:
    /// A parameter of that size with evenly distributed numbers no further from zero than `spread`. Lasts as
    /// long as this object.
    Parameter* add(std::size_t rows, std::size_t columns, float spread, std::mt19937& random);

    /// Moves every parameter against its gradient and sets that to zero.
    void step(Step step);
    /// The root of the sum of squares of all gradients.
    [[nodiscard]] double gradientSize() const;
    void scaleGradients(float factor);

    [[nodiscard]] const std::vector<std::unique_ptr<Parameter>>& all() const { return all_; }

private:
    std::vector<std::unique_ptr<Parameter>> all_;
    std::size_t steps_ = 0;
};

/// Rows of which a step uses a few: only those are moved.
class RowParameters {
public:
    RowParameters(std::size_t rows, std::size_t columns);

    [[nodiscard]] Matrix& values() { return parameter_.value; }
    [[nodiscard]] const Matrix& values() const { return parameter_.value; }
    [[nodiscard]] const Matrix& gradients() const { return parameter_.gradient; }
    /// Adds to the gradient of a row.
    void addGradient(std::size_t row, const float* gradient);
    /// Moves the rows that have a gradient.
    void step(Step step);

private:
    Parameter parameter_;
    std::vector<std::uint32_t> used_;
    std::vector<char> isUsed_;
    std::size_t steps_ = 0;
};

/// Evenly distributed in [0, 1), the same on every machine for the same state.
[[nodiscard]] inline float uniform(std::mt19937& random) {
    return static_cast<float>(random() >> 8) * 0x1p-24F;
}

} // namespace lexiform::train
