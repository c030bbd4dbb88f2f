#include "base/checkedSum.h"

#include "base/fatalError.h"

namespace lexiform {

std::int64_t checkedSum(std::int64_t a, std::int64_t b) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum)) fatalError("a count overflows");
    return sum;
}

} // namespace lexiform
