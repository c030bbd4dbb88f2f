#include "tools/train/network/MatrixProductTargets.h"

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)

#pragma GCC target("avx512f,avx512vl,avx512bw,avx512dq,fma")
namespace {
constexpr std::size_t productLanes = 16;
}
#include "tools/train/network/MatrixProductBlocks.inc"

namespace lexiform::train {

void addProductAvx512(Factor left, const float* right, float* sum, std::size_t rows, std::size_t inner,
                      std::size_t columns) {
    addProductInBlocks<8, 2>(left, right, sum, rows, inner, columns);
}

} // namespace lexiform::train

#endif
