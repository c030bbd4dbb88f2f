#include "tools/train/network/MatrixProduct.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace lexiform::train {
namespace {

std::vector<float> wholeNumbers(std::size_t count, std::uint32_t seed) {
    std::mt19937 random(seed);
    std::vector<float> values(count);
    for (float& value : values)
        value = static_cast<float>(random() % 7) - 3;
    return values;
}

// Whole numbers, so that the order of additions does not matter.
std::vector<float> plainProduct(Factor left, const std::vector<float>& right, std::size_t rows,
                                std::size_t inner, std::size_t columns) {
    std::vector<float> sum(rows * columns, 1);
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t k = 0; k < inner; ++k)
            for (std::size_t c = 0; c < columns; ++c)
                sum[r * columns + c] +=
                    left.values[r * left.rowStep + k * left.columnStep] * right[k * columns + c];
    return sum;
}

void expectProduct(Factor left, std::size_t rows, std::size_t inner, std::size_t columns) {
    const std::vector<float> right = wholeNumbers(inner * columns, 2);
    std::vector<float> sum(rows * columns, 1);
    addProduct(left, right.data(), sum.data(), rows, inner, columns);
    EXPECT_EQ(sum, plainProduct(left, right, rows, inner, columns));
}

TEST(MatrixProduct, isAddedToTheSum) {
    const std::vector<float> left = wholeNumbers(19 * 300, 1);
    expectProduct({left.data(), 300, 1}, 19, 300, 48);
}

TEST(MatrixProduct, readsATransposedFactor) {
    const std::vector<float> left = wholeNumbers(21 * 10, 1);
    expectProduct({left.data(), 1, 21}, 21, 10, 16);
}

TEST(MatrixProduct, readsRowsThatOverlap) {
    const std::vector<float> left = wholeNumbers(12 * 4, 1);
    expectProduct({left.data(), 4, 1}, 10, 12, 32);
}

} // namespace
} // namespace lexiform::train
