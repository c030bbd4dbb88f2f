#pragma once

#include <cstddef>

namespace lexiform::train {

/// How to read the left factor of a product: its number in row i and column k stands at
/// `values[i * rowStep + k * columnStep]`. Rows may overlap, and steps may be swapped to transpose.
struct Factor {
    const float* values;
    std::size_t rowStep;
    std::size_t columnStep;
};

/// Adds the product of `left`, `rows` by `inner`, and `right`, `inner` by `columns` with rows one after the
/// other, to `sum`, laid out like `right`. `columns` is a multiple of `productStep`. Blocks of the sum are
/// kept in vector registers (Goto and van de Geijn 2008, "Anatomy of high-performance matrix
/// multiplication").
void addProduct(Factor left, const float* right, float* sum, std::size_t rows, std::size_t inner,
                std::size_t columns);

inline constexpr std::size_t productStep = 16;

/// The nearest multiple of `productStep` that is not less than `count`.
[[nodiscard]] constexpr std::size_t padded(std::size_t count) {
    return (count + productStep - 1) / productStep * productStep;
}

} // namespace lexiform::train
