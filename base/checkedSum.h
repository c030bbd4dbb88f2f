#pragma once

#include <cstdint>

namespace lexiform {

/// `a + b`; a sum outside the signed 64-bit range is a broken invariant and stops the program.
[[nodiscard]] std::int64_t checkedSum(std::int64_t a, std::int64_t b);

} // namespace lexiform
