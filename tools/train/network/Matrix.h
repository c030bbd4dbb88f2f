#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace lexiform::train {

/// Numbers in rows, one row after the other.
class Matrix {
public:
    Matrix() = default;
    Matrix(std::size_t rows, std::size_t columns) { resize(rows, columns); }

    /// Makes it that large; all its numbers are zero then. Keeps its memory.
    void resize(std::size_t rows, std::size_t columns) {
        rows_ = rows;
        columns_ = columns;
        values_.assign(rows * columns, 0.0F);
    }
    void setZero() { std::fill(values_.begin(), values_.end(), 0.0F); }

    [[nodiscard]] std::size_t rows() const { return rows_; }
    [[nodiscard]] std::size_t columns() const { return columns_; }
    [[nodiscard]] float* row(std::size_t row) { return values_.data() + row * columns_; }
    [[nodiscard]] const float* row(std::size_t row) const { return values_.data() + row * columns_; }
    [[nodiscard]] std::vector<float>& values() { return values_; }
    [[nodiscard]] const std::vector<float>& values() const { return values_; }

private:
    std::size_t rows_ = 0, columns_ = 0;
    std::vector<float> values_;
};

} // namespace lexiform::train
