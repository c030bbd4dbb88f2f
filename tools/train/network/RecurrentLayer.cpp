#include "tools/train/network/RecurrentLayer.h"

#include "tools/train/network/MatrixProduct.h"
#include "tools/train/network/VectorClones.h"
#include "tools/train/network/addRow.h"

#include <algorithm>
#include <cmath>

namespace lexiform::train {

namespace {

constexpr std::size_t directionCount = 2;
constexpr std::size_t gatesPerUnit = 3;
// A word is kept rather than forgotten at first: u starts below one half.
constexpr float updateBias = -0.5F;

float candidate(float x) {
    return std::min(std::max(x, -1.0F), 1.0F);
}
float gate(float x) {
    return std::min(std::max(0.25F * x + 0.5F, 0.0F), 1.0F);
}
float candidateSlope(float x) {
    return x > -1.0F && x < 1.0F ? 1.0F : 0.0F;
}
float gateSlope(float x) {
    return x > -2.0F && x < 2.0F ? 0.25F : 0.0F;
}

LEXIFORM_VECTOR_CLONES
void advance(const float* gates, const float* before, float* LEXIFORM_ALONE state,
             float* LEXIFORM_ALONE output, std::size_t units) {
    for (std::size_t i = 0; i < units; ++i) {
        const float z = candidate(gates[i]);
        const float u = gate(gates[units + i]);
        const float o = gate(gates[2 * units + i]);
        state[i] = before[i] + u * (z - before[i]);
        output[i] = o * state[i];
    }
}

// `carried` holds the gradient by the state from the place that comes next in the direction; afterwards it
// holds that by the state before.
LEXIFORM_VECTOR_CLONES
void retreat(const float* gates, const float* before, const float* state, const float* outputGradient,
             float* LEXIFORM_ALONE carried, float* LEXIFORM_ALONE gateGradient, std::size_t units) {
    float* LEXIFORM_ALONE byCandidate = gateGradient;
    float* LEXIFORM_ALONE byUpdate = gateGradient + units;
    float* LEXIFORM_ALONE byOutput = gateGradient + 2 * units;
    for (std::size_t i = 0; i < units; ++i) {
        const float z = candidate(gates[i]);
        const float u = gate(gates[units + i]);
        const float o = gate(gates[2 * units + i]);
        const float byState = outputGradient[i] * o + carried[i];
        byCandidate[i] = byState * u * candidateSlope(gates[i]);
        byUpdate[i] = byState * (z - before[i]) * gateSlope(gates[units + i]);
        byOutput[i] = outputGradient[i] * state[i] * gateSlope(gates[2 * units + i]);
        carried[i] = byState * (1 - u);
    }
}

Matrix transposed(const Matrix& matrix, std::size_t paddedRows) {
    Matrix result(matrix.columns(), paddedRows);
    for (std::size_t r = 0; r < matrix.rows(); ++r)
        for (std::size_t c = 0; c < matrix.columns(); ++c)
            result.row(c)[r] = matrix.row(r)[c];
    return result;
}

} // namespace

RecurrentLayer::RecurrentLayer(std::size_t inputs, std::size_t units, std::size_t reach,
                               Parameters& parameters, std::mt19937& random)
    : inputs_(inputs), units_(units), reach_(reach) {
    const std::size_t columns = directionCount * gatesPerUnit * units;
    const float spread = std::sqrt(6.0F / static_cast<float>(window() + units));
    weights_ = parameters.add(window(), columns, spread, random);
    bias_ = parameters.add(1, columns, 0, random);
    for (std::size_t direction = 0; direction < directionCount; ++direction)
        std::fill_n(bias_->value.row(0) + (direction * gatesPerUnit + 1) * units, units, updateBias);
}

const Matrix& RecurrentLayer::forward(const Matrix& input, const Boundaries& isBoundary) {
    input_ = &input;
    isBoundary_ = &isBoundary;
    const std::size_t places = isBoundary.size();
    const std::size_t columns = weights_->value.columns();
    gates_.resize(places, columns);
    for (std::size_t place = 0; place < places; ++place)
        std::copy_n(bias_->value.row(0), columns, gates_.row(place));
    addProduct({input.row(0), inputs_, 1}, weights_->value.row(0), gates_.row(0), places, window(), columns);
    states_.resize(places, directionCount * units_);
    outputs_.resize(places, directionCount * units_);
    for (std::size_t direction = 0; direction < directionCount; ++direction)
        runForward(direction);
    return outputs_;
}

void RecurrentLayer::runForward(std::size_t direction) {
    const std::size_t places = isBoundary_->size();
    const std::size_t offset = direction * units_;
    for (std::size_t i = 1; i + 1 < places; ++i) {
        const std::size_t place = direction == 0 ? i : places - 1 - i;
        if ((*isBoundary_)[place] != 0) continue;
        const std::size_t before = direction == 0 ? place - 1 : place + 1;
        advance(gates_.row(place) + gatesPerUnit * offset, states_.row(before) + offset,
                states_.row(place) + offset, outputs_.row(place) + offset, units_);
    }
}

void RecurrentLayer::runBackward(std::size_t direction, const Matrix& outputGradient) {
    const std::size_t places = isBoundary_->size();
    const std::size_t offset = direction * units_;
    std::vector<float> carried(units_, 0.0F);
    for (std::size_t i = 1; i + 1 < places; ++i) {
        const std::size_t place = direction == 0 ? places - 1 - i : i;
        if ((*isBoundary_)[place] != 0) {
            std::fill(carried.begin(), carried.end(), 0.0F);
            continue;
        }
        const std::size_t before = direction == 0 ? place - 1 : place + 1;
        retreat(gates_.row(place) + gatesPerUnit * offset, states_.row(before) + offset,
                states_.row(place) + offset, outputGradient.row(place) + offset, carried.data(),
                gateGradient_.row(place) + gatesPerUnit * offset, units_);
    }
}

void RecurrentLayer::backward(const Matrix& outputGradient, Matrix& inputGradient) {
    const std::size_t places = isBoundary_->size();
    const std::size_t columns = weights_->value.columns();
    gateGradient_.resize(places, columns);
    for (std::size_t direction = 0; direction < directionCount; ++direction)
        runBackward(direction, outputGradient);
    addProduct({input_->row(0), 1, inputs_}, gateGradient_.row(0), weights_->gradient.row(0), window(),
               places, columns);
    for (std::size_t place = 0; place < places; ++place)
        addRow(bias_->gradient.row(0), gateGradient_.row(place), columns);
    const std::size_t paddedWindow = padded(window());
    const Matrix back = transposed(weights_->value, paddedWindow);
    Matrix windows(places, paddedWindow);
    addProduct({gateGradient_.row(0), columns, 1}, back.row(0), windows.row(0), places, columns,
               paddedWindow);
    inputGradient.resize(input_->rows(), inputs_);
    for (std::size_t place = 0; place < places; ++place)
        addRow(inputGradient.row(place), windows.row(place), window());
}

} // namespace lexiform::train
