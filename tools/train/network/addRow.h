#pragma once

#include <cstddef>

namespace lexiform::train {

/// Adds the first `count` numbers of `row` to those of `sum`; the two share none.
void addRow(float* sum, const float* row, std::size_t count);

} // namespace lexiform::train
