#include "linguistics/network/VectorKernels.h"

#if defined(__aarch64__) && defined(__ARM_NEON)

#include <arm_neon.h>

namespace lexiform::linguistics {

namespace {

constexpr std::size_t lanes = 8; // of 16 bits

int16x8_t bounded(int16x8_t values, int limit) {
    const auto most = static_cast<std::int16_t>(limit);
    return vmaxq_s16(vminq_s16(values, vdupq_n_s16(most)), vdupq_n_s16(static_cast<std::int16_t>(-most)));
}
int16x8_t shifted(int32x4_t low, int32x4_t high, int32x4_t shift) {
    return vcombine_s16(vqmovn_s32(vshlq_s32(low, shift)), vqmovn_s32(vshlq_s32(high, shift)));
}
// The upper halves of the products.
int16x8_t product(int16x8_t a, int16x8_t b) {
    const int32x4_t low = vmull_s16(vget_low_s16(a), vget_low_s16(b));
    const int32x4_t high = vmull_s16(vget_high_s16(a), vget_high_s16(b));
    return vcombine_s16(vshrn_n_s32(low, 16), vshrn_n_s32(high, 16));
}
// `weights` holds eight pairs, whose first and second numbers come apart here.
void addPair(const std::int16_t* inputs, const std::int16_t* weights, int32x4_t& low, int32x4_t& high) {
    const int16x8x2_t pairs = vld2q_s16(weights);
    low = vmlal_n_s16(low, vget_low_s16(pairs.val[0]), inputs[0]);
    low = vmlal_n_s16(low, vget_low_s16(pairs.val[1]), inputs[1]);
    high = vmlal_n_s16(high, vget_high_s16(pairs.val[0]), inputs[0]);
    high = vmlal_n_s16(high, vget_high_s16(pairs.val[1]), inputs[1]);
}

void project(const std::int16_t* inputs, const std::int16_t* weights, const std::int16_t* bias,
             std::uint32_t shift, std::int16_t* projection) {
    const int32x4_t by = vdupq_n_s32(-static_cast<int>(shift));
    for (std::size_t block = 0; block < projectionSize; block += projectionBlock) {
        int32x4_t sums[4] = {vdupq_n_s32(0), vdupq_n_s32(0), vdupq_n_s32(0), vdupq_n_s32(0)};
        for (std::size_t i = 0; i < networkWidth; i += 2, weights += 2 * projectionBlock) {
            addPair(inputs + i, weights, sums[0], sums[1]);
            addPair(inputs + i, weights + 2 * lanes, sums[2], sums[3]);
        }
        for (std::size_t v = 0; v < 2; ++v) {
            const std::size_t at = block + v * lanes;
            const int16x8_t sum = vqaddq_s16(shifted(sums[2 * v], sums[2 * v + 1], by), vld1q_s16(bias + at));
            vst1q_s16(projection + at, bounded(sum, largestProjection));
        }
    }
}

int16x8_t sumAt(const std::int16_t* before, const std::int16_t* own, const std::int16_t* after,
                std::size_t i) {
    return vaddq_s16(vaddq_s16(vld1q_s16(before + i), vld1q_s16(own + i)), vld1q_s16(after + i));
}

int16x8_t gateOf(int16x8_t sum) {
    constexpr std::int16_t reach = 2 * gateOne;
    const int16x8_t within = vmaxq_s16(vminq_s16(sum, vdupq_n_s16(reach - 1)), vdupq_n_s16(-reach));
    return vshlq_n_s16(vaddq_s16(within, vdupq_n_s16(reach)), 3);
}

void advance(const std::int16_t* before, const std::int16_t* own, const std::int16_t* after,
             std::int16_t* states, std::int16_t* outputs) {
    for (std::size_t i = 0; i < networkUnits; i += lanes) {
        const int16x8_t candidate = vshlq_n_s16(bounded(sumAt(before, own, after, i), gateOne - 1), 4);
        const int16x8_t update = gateOf(sumAt(before, own, after, networkUnits + i));
        const int16x8_t output = gateOf(sumAt(before, own, after, 2 * networkUnits + i));
        const int16x8_t old = vld1q_s16(states + i);
        const int16x8_t change = product(vsubq_s16(candidate, old), update);
        const int16x8_t state = vaddq_s16(old, vaddq_s16(change, change));
        vst1q_s16(states + i, state);
        vst1q_s16(outputs + i, product(state, output));
    }
}

void score(const std::int16_t* outputs, const std::int16_t* weights, const std::int16_t* bias,
           std::uint32_t shift, std::int16_t* scores) {
    constexpr std::size_t vectors = networkLabels / lanes;
    int32x4_t low[vectors], high[vectors];
    for (std::size_t v = 0; v < vectors; ++v)
        low[v] = high[v] = vdupq_n_s32(0);
    for (std::size_t i = 0; i < networkOutputs; i += 2, weights += 2 * networkLabels)
        for (std::size_t v = 0; v < vectors; ++v)
            addPair(outputs + i, weights + v * 2 * lanes, low[v], high[v]);
    const int32x4_t by = vdupq_n_s32(-static_cast<int>(shift));
    for (std::size_t v = 0; v < vectors; ++v) {
        const int16x8_t sum = bounded(shifted(low[v], high[v], by), largestNetworkScore);
        vst1q_s16(scores + v * lanes, vaddq_s16(sum, vld1q_s16(bias + v * lanes)));
    }
}

} // namespace

const NetworkKernels* neonKernels() {
    static constexpr NetworkKernels kernels = {project, advance, score};
    return &kernels;
}

} // namespace lexiform::linguistics

#else

namespace lexiform::linguistics {

const NetworkKernels* neonKernels() {
    return nullptr;
}

} // namespace lexiform::linguistics

#endif
