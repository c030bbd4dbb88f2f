#pragma once

#include "linguistics/tagging/WordTraits.h"
#include "linguistics/text/Hash.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace lexiform::linguistics {

// The features of the linear model. Each is the hash of a template and its values; the trainer and
// the engine ask for them here, so that they cannot differ. A model file names the version below.

/// Changes whenever a template does: a model trained with others would answer nonsense.
inline constexpr std::uint32_t featureVersion = 1;

/// A word looks this many words to either side.
inline constexpr int contextReach = 2;
/// The neighbours that it looks at, on both sides together.
inline constexpr std::size_t neighbourCount = std::size_t{contextReach} * 2;

/// The traits of a word and of its neighbours, from `contextReach` before it to as many after it.
using Context = std::array<const WordTraits*, neighbourCount + 1>;

/// Tells `take` the features that the word `offset` places away shows by itself.
template <typename Take>
void forEachWordFeature(const WordTraits& word, int offset, Take take) {
    const auto base = static_cast<std::uint64_t>(offset + contextReach + 1) << 8;
    const auto tell = [&](std::uint64_t kind, std::uint64_t value) { take(combined(base + kind, value)); };
    tell(1, word.normal);
    if (word.entry.ambiguity != 0) tell(2, word.entry.ambiguity);
    if (word.entry.cluster != 0) tell(3, word.entry.cluster);
    tell(4, word.shape);
    if (word.entry.lists != 0) tell(5, word.entry.lists);
    if (offset < -1 || offset > 1) return;
    tell(6, word.suffixes[1]);
    tell(7, word.suffixes[2]);
    if (offset != 0) return;
    tell(8, word.exact);
    tell(9, word.suffixes[0]);
    tell(10, word.suffixes[3]);
    tell(11, word.suffixes[4]);
    for (std::size_t i = 0; i < WordTraits::prefixCount; ++i)
        tell(12 + i, word.prefixes[i]);
    const auto casing = static_cast<std::uint64_t>(word.casing);
    tell(16, casing);
    tell(17, combined(word.suffixes[2], casing));
    tell(18, combined(word.entry.ambiguity, casing));
    tell(19, combined(word.entry.lists, casing));
}

/// What a sentence is like as a whole, as far as it changes what a word's capitals mean.
struct SentenceTraits {
    bool capitalsMean = true; ///< it has lower-case words and is not set in title case
};

/// Tells `take` the features that join a word with its neighbours and its place.
template <typename Take>
void forEachContextFeature(const Context& context, bool first, SentenceTraits sentence, Take take) {
    const auto tell = [&](std::uint64_t kind, std::uint64_t a, std::uint64_t b) {
        take(combined(combined(kind, a), b));
    };
    const WordTraits& before = *context[1];
    const WordTraits& word = *context[2];
    const WordTraits& after = *context[3];
    const auto casing = static_cast<std::uint64_t>(word.casing);
    tell(32, word.normal, before.normal);
    tell(33, word.normal, after.normal);
    tell(34, word.entry.ambiguity, before.entry.ambiguity * std::uint64_t{256} + after.entry.ambiguity);
    tell(35, before.entry.cluster, word.entry.cluster);
    tell(36, word.entry.cluster, after.entry.cluster);
    tell(37, before.entry.cluster * std::uint64_t{65536} + after.entry.cluster, casing);
    tell(38, word.suffixes[2], after.entry.ambiguity);
    tell(39, word.suffixes[2], before.entry.ambiguity);
    tell(40, (casing * 2 + (first ? 1U : 0U)) * 2 + (sentence.capitalsMean ? 1U : 0U),
         (word.entry.ambiguity * std::uint64_t{8} + static_cast<std::uint64_t>(after.casing)) *
                 std::uint64_t{8} +
             static_cast<std::uint64_t>(before.casing));
}

} // namespace lexiform::linguistics
