#include "tools/train/network/MatrixProduct.h"

#include "tools/train/network/MatrixProductTargets.h"

namespace {
constexpr std::size_t productLanes = 4;
}
#include "tools/train/network/MatrixProductBlocks.inc"

namespace lexiform::train {

namespace {

using Product = void (*)(Factor, const float*, float*, std::size_t, std::size_t, std::size_t);

Product fastestProduct() {
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
    if (__builtin_cpu_supports("avx512bw") != 0) return addProductAvx512;
    if (__builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("fma") != 0) return addProductAvx2;
#endif
    return addProductInBlocks<3, 2>;
}

} // namespace

void addProduct(Factor left, const float* right, float* sum, std::size_t rows, std::size_t inner,
                std::size_t columns) {
    static const Product product = fastestProduct();
    product(left, right, sum, rows, inner, columns);
}

} // namespace lexiform::train
