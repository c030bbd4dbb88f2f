#pragma once

#include "linguistics/file/ModelFormat.h"
#include "linguistics/lemmas/LemmaRule.h"

#include <cstddef>
#include <cstdint>

namespace lexiform::linguistics {

// The sections of a lemmatizer, as docs/formats/lemmas.md describes them.

/// Changes whenever the layout or a feature does: weights for other features would answer nonsense.
inline constexpr std::uint32_t lemmaVersion = 1;

inline constexpr SectionId lemmaRules = SectionId::lemmas;
inline constexpr auto lemmaBucketStarts = static_cast<SectionId>(49);
inline constexpr auto lemmaWeights = static_cast<SectionId>(50);

[[nodiscard]] constexpr bool isLemmaSection(SectionId id) {
    return id == lemmaRules || id == lemmaBucketStarts || id == lemmaWeights;
}

/// The first labels are casings, then comes the mark of words whose lemma hangs on their neighbours, then
/// the rules, of which the first changes nothing.
inline constexpr std::size_t neighbourMark = lemmaCasingCount;
inline constexpr std::size_t firstRuleLabel = neighbourMark + 1;

inline constexpr std::size_t mostLemmaLabels = std::size_t{1} << 12;
/// Places of weights are counted in 16 bits.
inline constexpr std::size_t mostLemmaWeights = 65535;
inline constexpr std::size_t mostLemmaBuckets = std::size_t{1} << 16;

/// No string of a rule has more characters.
inline constexpr std::size_t longestRuleText = 32;

/// A feature's weight for a label. A few weights are hundreds of times as large as most, so a record holds a
/// weight's root, with its sign, and the squares are added up.
struct LemmaWeight {
    static constexpr unsigned rootBits = 6, labelBits = 12;
    static constexpr int largestRoot = (1 << (rootBits - 1)) - 1;
    static constexpr int largest = largestRoot * largestRoot;

    std::uint32_t packed = 0; ///< from the lowest bit: the root plus 32, the label, 14 bits of check

    [[nodiscard]] static constexpr LemmaWeight of(std::uint32_t check, std::size_t label, int root) {
        return {(check << (rootBits + labelBits)) | (static_cast<std::uint32_t>(label) << rootBits) |
                static_cast<std::uint32_t>(root + largestRoot + 1)};
    }
    [[nodiscard]] constexpr std::uint32_t check() const { return packed >> (rootBits + labelBits); }
    [[nodiscard]] constexpr std::size_t label() const {
        return (packed >> rootBits) & ((1U << labelBits) - 1);
    }
    [[nodiscard]] constexpr int weight() const {
        const int root = static_cast<int>(packed & ((1U << rootBits) - 1)) - largestRoot - 1;
        return root < 0 ? -root * root : root * root;
    }
};
static_assert(sizeof(LemmaWeight) == 4);

[[nodiscard]] constexpr std::size_t lemmaBucketOf(std::uint64_t feature, std::size_t bucketCount) {
    return static_cast<std::size_t>(feature >> 32) & (bucketCount - 1);
}
[[nodiscard]] constexpr std::uint32_t lemmaCheckOf(std::uint64_t feature) {
    return static_cast<std::uint32_t>(feature & 0x3FFF);
}

} // namespace lexiform::linguistics
