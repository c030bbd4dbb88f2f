#include "tools/train/network/Parameters.h"

#include "tools/train/network/VectorClones.h"

#include <cmath>

namespace lexiform::train {

namespace {

constexpr float meanDecay = 0.9F;
constexpr float squareDecay = 0.99F;
constexpr float tiny = 1e-8F;

struct Rates {
    float rate, squareScale, bound;
};

Rates ratesAt(std::size_t steps, Step step) {
    const auto count = static_cast<float>(steps);
    return {step.rate / (1 - std::pow(meanDecay, count)), 1 / (1 - std::pow(squareDecay, count)), step.bound};
}

LEXIFORM_VECTOR_CLONES
void move(float* LEXIFORM_ALONE value, float* LEXIFORM_ALONE gradient, float* LEXIFORM_ALONE mean,
          float* LEXIFORM_ALONE square, std::size_t count, Rates rates) {
    for (std::size_t i = 0; i < count; ++i) {
        const float g = gradient[i];
        mean[i] += (1 - meanDecay) * (g - mean[i]);
        square[i] += (1 - squareDecay) * (g * g - square[i]);
        const float moved =
            value[i] - rates.rate * mean[i] / (std::sqrt(square[i] * rates.squareScale) + tiny);
        value[i] = std::min(std::max(moved, -rates.bound), rates.bound);
        gradient[i] = 0;
    }
}

LEXIFORM_VECTOR_CLONES
void addTo(float* LEXIFORM_ALONE sum, const float* values, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        sum[i] += values[i];
}

} // namespace

Parameter* Parameters::add(std::size_t rows, std::size_t columns, float spread, std::mt19937& random) {
    auto parameter = std::make_unique<Parameter>();
    for (Matrix* matrix : {&parameter->value, &parameter->gradient, &parameter->mean, &parameter->square})
        matrix->resize(rows, columns);
    for (float& value : parameter->value.values())
        value = (2 * uniform(random) - 1) * spread;
    all_.push_back(std::move(parameter));
    return all_.back().get();
}

void Parameters::step(Step step) {
    const Rates rates = ratesAt(++steps_, step);
    for (const auto& parameter : all_)
        move(parameter->value.row(0), parameter->gradient.row(0), parameter->mean.row(0),
             parameter->square.row(0), parameter->value.values().size(), rates);
}

double Parameters::gradientSize() const {
    double sum = 0;
    for (const auto& parameter : all_)
        for (const float value : parameter->gradient.values())
            sum += static_cast<double>(value) * static_cast<double>(value);
    return std::sqrt(sum);
}

void Parameters::scaleGradients(float factor) {
    for (const auto& parameter : all_)
        for (float& value : parameter->gradient.values())
            value *= factor;
}

RowParameters::RowParameters(std::size_t rows, std::size_t columns) : isUsed_(rows, 0) {
    for (Matrix* matrix : {&parameter_.value, &parameter_.gradient, &parameter_.mean, &parameter_.square})
        matrix->resize(rows, columns);
}

void RowParameters::addGradient(std::size_t row, const float* gradient) {
    if (isUsed_[row] == 0) {
        isUsed_[row] = 1;
        used_.push_back(static_cast<std::uint32_t>(row));
    }
    addTo(parameter_.gradient.row(row), gradient, parameter_.gradient.columns());
}

void RowParameters::step(Step step) {
    const Rates rates = ratesAt(++steps_, step);
    for (const std::uint32_t row : used_) {
        isUsed_[row] = 0;
        move(parameter_.value.row(row), parameter_.gradient.row(row), parameter_.mean.row(row),
             parameter_.square.row(row), parameter_.value.columns(), rates);
    }
    used_.clear();
}

} // namespace lexiform::train
