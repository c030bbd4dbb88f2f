#pragma once

#include "linguistics/network/NetworkKernels.h"

namespace lexiform::linguistics {

// The kernels in the vector instructions of one kind of processor; null where this one lacks them.
[[nodiscard]] const NetworkKernels* sse2Kernels();
[[nodiscard]] const NetworkKernels* avx2Kernels();
[[nodiscard]] const NetworkKernels* neonKernels();

} // namespace lexiform::linguistics
