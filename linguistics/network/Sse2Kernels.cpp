#include "linguistics/network/VectorKernels.h"

#if defined(__SSE2__)

#include <cstring>
#include <emmintrin.h>

namespace lexiform::linguistics {

namespace {

using Vector = __m128i;
constexpr std::size_t lanes = 8; // of 16 bits

Vector load(const std::int16_t* values) {
    return _mm_loadu_si128(reinterpret_cast<const Vector*>(values));
}
void store(std::int16_t* values, Vector vector) {
    _mm_storeu_si128(reinterpret_cast<Vector*>(values), vector);
}
// Two neighbouring numbers in every pair of lanes.
Vector pairAt(const std::int16_t* values) {
    int pair = 0;
    std::memcpy(&pair, values, sizeof(pair));
    return _mm_set1_epi32(pair);
}
Vector bounded(Vector values, int limit) {
    const auto most = static_cast<std::int16_t>(limit);
    return _mm_max_epi16(_mm_min_epi16(values, _mm_set1_epi16(most)),
                         _mm_set1_epi16(static_cast<std::int16_t>(-most)));
}
Vector shifted(Vector low, Vector high, Vector shift) {
    return _mm_packs_epi32(_mm_sra_epi32(low, shift), _mm_sra_epi32(high, shift));
}

void project(const std::int16_t* inputs, const std::int16_t* weights, const std::int16_t* bias,
             std::uint32_t shift, std::int16_t* projection) {
    const Vector by = _mm_cvtsi32_si128(static_cast<int>(shift));
    for (std::size_t block = 0; block < projectionSize; block += projectionBlock) {
        Vector sums[4] = {_mm_setzero_si128(), _mm_setzero_si128(), _mm_setzero_si128(), _mm_setzero_si128()};
        for (std::size_t i = 0; i < networkWidth; i += 2, weights += 2 * projectionBlock) {
            const Vector pair = pairAt(inputs + i);
            for (std::size_t v = 0; v < 4; ++v)
                sums[v] = _mm_add_epi32(sums[v], _mm_madd_epi16(pair, load(weights + v * lanes)));
        }
        for (std::size_t v = 0; v < 2; ++v) {
            const std::size_t at = block + v * lanes;
            const Vector sum = _mm_adds_epi16(shifted(sums[2 * v], sums[2 * v + 1], by), load(bias + at));
            store(projection + at, bounded(sum, largestProjection));
        }
    }
}

Vector sumAt(const std::int16_t* before, const std::int16_t* own, const std::int16_t* after, std::size_t i) {
    return _mm_add_epi16(_mm_add_epi16(load(before + i), load(own + i)), load(after + i));
}

Vector gateOf(Vector sum) {
    constexpr std::int16_t reach = 2 * gateOne;
    const Vector within =
        _mm_max_epi16(_mm_min_epi16(sum, _mm_set1_epi16(reach - 1)), _mm_set1_epi16(-reach));
    return _mm_slli_epi16(_mm_add_epi16(within, _mm_set1_epi16(reach)), 3);
}

void advance(const std::int16_t* before, const std::int16_t* own, const std::int16_t* after,
             std::int16_t* states, std::int16_t* outputs) {
    for (std::size_t i = 0; i < networkUnits; i += lanes) {
        const Vector candidate = _mm_slli_epi16(bounded(sumAt(before, own, after, i), gateOne - 1), 4);
        const Vector update = gateOf(sumAt(before, own, after, networkUnits + i));
        const Vector output = gateOf(sumAt(before, own, after, 2 * networkUnits + i));
        const Vector old = load(states + i);
        const Vector change = _mm_mulhi_epi16(_mm_sub_epi16(candidate, old), update);
        const Vector state = _mm_add_epi16(old, _mm_add_epi16(change, change));
        store(states + i, state);
        store(outputs + i, _mm_mulhi_epi16(state, output));
    }
}

void score(const std::int16_t* outputs, const std::int16_t* weights, const std::int16_t* bias,
           std::uint32_t shift, std::int16_t* scores) {
    constexpr std::size_t vectors = networkLabels * 2 / lanes;
    Vector sums[vectors];
    for (Vector& sum : sums)
        sum = _mm_setzero_si128();
    for (std::size_t i = 0; i < networkOutputs; i += 2, weights += 2 * networkLabels) {
        const Vector pair = pairAt(outputs + i);
        for (std::size_t v = 0; v < vectors; ++v)
            sums[v] = _mm_add_epi32(sums[v], _mm_madd_epi16(pair, load(weights + v * lanes)));
    }
    const Vector by = _mm_cvtsi32_si128(static_cast<int>(shift));
    for (std::size_t v = 0; v < vectors / 2; ++v) {
        const Vector sum = bounded(shifted(sums[2 * v], sums[2 * v + 1], by), largestNetworkScore);
        store(scores + v * lanes, _mm_add_epi16(sum, load(bias + v * lanes)));
    }
}

} // namespace

const NetworkKernels* sse2Kernels() {
    static constexpr NetworkKernels kernels = {project, advance, score};
    return &kernels;
}

} // namespace lexiform::linguistics

#else

namespace lexiform::linguistics {

const NetworkKernels* sse2Kernels() {
    return nullptr;
}

} // namespace lexiform::linguistics

#endif
