#pragma once

/// Marks a function of loops over numbers: it is compiled for several generations of processors, and the
/// one that fits is chosen when the program starts. The generations may round differently, so a training
/// repeats to the byte on one machine only.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define LEXIFORM_VECTOR_CLONES                                                                               \
    __attribute__((target_clones("arch=skylake-avx512", "arch=haswell", "default")))
#else
#define LEXIFORM_VECTOR_CLONES
#endif

/// Says that nothing else points to what a pointer points to, so that loops need not look.
#define LEXIFORM_ALONE __restrict__
