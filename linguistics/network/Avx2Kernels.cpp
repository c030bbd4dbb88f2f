#include "linguistics/network/VectorKernels.h"

#if defined(__x86_64__) && defined(__GNUC__)

#include <cstring>
#include <immintrin.h>

// The rest of the program is for any processor of the family; these functions run where AVX2 was found.
#define LEXIFORM_AVX2 __attribute__((target("avx2")))

namespace lexiform::linguistics {

namespace {

using Vector = __m256i;
constexpr std::size_t lanes = 16; // of 16 bits

LEXIFORM_AVX2 inline Vector load(const std::int16_t* values) {
    return _mm256_loadu_si256(reinterpret_cast<const Vector*>(values));
}
LEXIFORM_AVX2 inline void store(std::int16_t* values, Vector vector) {
    _mm256_storeu_si256(reinterpret_cast<Vector*>(values), vector);
}
LEXIFORM_AVX2 inline Vector pairAt(const std::int16_t* values) {
    int pair = 0;
    std::memcpy(&pair, values, sizeof(pair));
    return _mm256_set1_epi32(pair);
}
LEXIFORM_AVX2 inline Vector bounded(Vector values, int limit) {
    const auto most = static_cast<std::int16_t>(limit);
    return _mm256_max_epi16(_mm256_min_epi16(values, _mm256_set1_epi16(most)),
                            _mm256_set1_epi16(static_cast<std::int16_t>(-most)));
}
// Packing works within halves; the permutation puts the numbers back in order.
LEXIFORM_AVX2 inline Vector shifted(Vector low, Vector high, __m128i shift) {
    const Vector packed = _mm256_packs_epi32(_mm256_sra_epi32(low, shift), _mm256_sra_epi32(high, shift));
    return _mm256_permute4x64_epi64(packed, 0b11011000);
}

LEXIFORM_AVX2 void project(const std::int16_t* inputs, const std::int16_t* weights, const std::int16_t* bias,
                           std::uint32_t shift, std::int16_t* projection) {
    const __m128i by = _mm_cvtsi32_si128(static_cast<int>(shift));
    for (std::size_t block = 0; block < projectionSize; block += projectionBlock) {
        Vector low = _mm256_setzero_si256(), high = _mm256_setzero_si256();
        for (std::size_t i = 0; i < networkWidth; i += 2, weights += 2 * projectionBlock) {
            const Vector pair = pairAt(inputs + i);
            low = _mm256_add_epi32(low, _mm256_madd_epi16(pair, load(weights)));
            high = _mm256_add_epi32(high, _mm256_madd_epi16(pair, load(weights + lanes)));
        }
        const Vector sum = _mm256_adds_epi16(shifted(low, high, by), load(bias + block));
        store(projection + block, bounded(sum, largestProjection));
    }
}

LEXIFORM_AVX2 inline Vector sumAt(const std::int16_t* before, const std::int16_t* own,
                                  const std::int16_t* after, std::size_t i) {
    return _mm256_add_epi16(_mm256_add_epi16(load(before + i), load(own + i)), load(after + i));
}

LEXIFORM_AVX2 inline Vector gateOf(Vector sum) {
    constexpr std::int16_t reach = 2 * gateOne;
    const Vector within =
        _mm256_max_epi16(_mm256_min_epi16(sum, _mm256_set1_epi16(reach - 1)), _mm256_set1_epi16(-reach));
    return _mm256_slli_epi16(_mm256_add_epi16(within, _mm256_set1_epi16(reach)), 3);
}

LEXIFORM_AVX2 void advance(const std::int16_t* before, const std::int16_t* own, const std::int16_t* after,
                           std::int16_t* states, std::int16_t* outputs) {
    for (std::size_t i = 0; i < networkUnits; i += lanes) {
        const Vector candidate = _mm256_slli_epi16(bounded(sumAt(before, own, after, i), gateOne - 1), 4);
        const Vector update = gateOf(sumAt(before, own, after, networkUnits + i));
        const Vector output = gateOf(sumAt(before, own, after, 2 * networkUnits + i));
        const Vector old = load(states + i);
        const Vector change = _mm256_mulhi_epi16(_mm256_sub_epi16(candidate, old), update);
        const Vector state = _mm256_add_epi16(old, _mm256_add_epi16(change, change));
        store(states + i, state);
        store(outputs + i, _mm256_mulhi_epi16(state, output));
    }
}

LEXIFORM_AVX2 void score(const std::int16_t* outputs, const std::int16_t* weights, const std::int16_t* bias,
                         std::uint32_t shift, std::int16_t* scores) {
    Vector sums[3] = {_mm256_setzero_si256(), _mm256_setzero_si256(), _mm256_setzero_si256()};
    static_assert(networkLabels * 2 == 3 * lanes);
    for (std::size_t i = 0; i < networkOutputs; i += 2, weights += 2 * networkLabels) {
        const Vector pair = pairAt(outputs + i);
        for (std::size_t v = 0; v < 3; ++v)
            sums[v] = _mm256_add_epi32(sums[v], _mm256_madd_epi16(pair, load(weights + v * lanes)));
    }
    const __m128i by = _mm_cvtsi32_si128(static_cast<int>(shift));
    const Vector first = bounded(shifted(sums[0], sums[1], by), largestNetworkScore);
    store(scores, _mm256_add_epi16(first, load(bias)));
    const Vector rest = bounded(shifted(sums[2], _mm256_setzero_si256(), by), largestNetworkScore);
    const __m128i lastBias = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bias + lanes));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(scores + lanes),
                     _mm_add_epi16(_mm256_castsi256_si128(rest), lastBias));
}

} // namespace

const NetworkKernels* avx2Kernels() {
    static constexpr NetworkKernels kernels = {project, advance, score};
    return __builtin_cpu_supports("avx2") != 0 ? &kernels : nullptr;
}

} // namespace lexiform::linguistics

#else

namespace lexiform::linguistics {

const NetworkKernels* avx2Kernels() {
    return nullptr;
}

} // namespace lexiform::linguistics

#endif
