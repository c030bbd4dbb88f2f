#pragma once

#include "tools/train/network/MatrixProduct.h"

namespace lexiform::train {

// `addProduct` for processors of some generations; only to be called where they are present.
void addProductAvx512(Factor left, const float* right, float* sum, std::size_t rows, std::size_t inner,
                      std::size_t columns);
void addProductAvx2(Factor left, const float* right, float* sum, std::size_t rows, std::size_t inner,
                    std::size_t columns);

} // namespace lexiform::train
