#pragma once

#include "linguistics/lemmas/FoldedWord.h"
#include "linguistics/text/Hash.h"
#include "linguistics/text/UniversalPos.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace lexiform::linguistics {

// The features by which a word's lemma is chosen. Each is the hash of a template and its values; the trainer
// and the engine ask for them here, so that they cannot differ. `lemmaVersion` changes when they do.

/// A word of a sentence with its part of speech.
struct TaggedWord {
    std::string_view form{};
    UniversalPos pos = UniversalPos::X;
};

/// Where a word stands, as far as it tells what its capitals mean.
enum class WordPlace : std::uint8_t {
    within,
    afterMark, ///< within the sentence, after a mark
    first,     ///< nothing but marks before it
    shouted,   ///< all in capitals, and so is a word beside it
};

/// The place of word `at` of a sentence.
[[nodiscard]] WordPlace placeOf(std::span<const TaggedWord> sentence, std::size_t at);

/// What a word shows by itself: hashes of its ends in lower case, with every digit a 0.
struct LemmaTraits {
    static constexpr std::size_t suffixCount = 8, prefixCount = 4;

    std::uint64_t form = 0;
    std::array<std::uint64_t, suffixCount> suffixes{}; ///< of 1 to 8 characters
    std::array<std::uint64_t, prefixCount> prefixes{};
    std::size_t size = 0; ///< characters
    LetterCase letterCase = LetterCase::none;
};

[[nodiscard]] inline LemmaTraits lemmaTraitsOf(const FoldedWord& word) {
    const auto character = [&](std::size_t at) {
        const char32_t value = word.lower(at);
        return static_cast<std::uint64_t>(value >= '0' && value <= '9' ? U'0' : value);
    };
    LemmaTraits traits;
    traits.size = word.size();
    traits.letterCase = word.letterCase();
    std::uint64_t hash = 1;
    for (std::size_t n = 0; n < word.size(); ++n) {
        hash = combined(hash, character(n));
        if (n < LemmaTraits::prefixCount) traits.prefixes[n] = hash;
    }
    traits.form = hash;
    hash = 2;
    for (std::size_t n = 0; n < word.size() && n < LemmaTraits::suffixCount; ++n)
        traits.suffixes[n] = hash = combined(hash, character(word.size() - 1 - n));
    return traits;
}

/// Tags that are often taken for one another and share their lemmas count as one.
[[nodiscard]] constexpr UniversalPos lemmaTagOf(UniversalPos pos) {
    if (pos == UniversalPos::AUX) return UniversalPos::VERB;
    return pos == UniversalPos::CCONJ ? UniversalPos::SCONJ : pos;
}

/// Tells `take` the features that choose the rule.
template <typename Take>
void forEachRuleFeature(const LemmaTraits& word, UniversalPos pos, Take take) {
    const auto tag = static_cast<std::uint64_t>(lemmaTagOf(pos)) + 1;
    const auto tell = [&](std::uint64_t kind, std::uint64_t value) { take(combined(kind, value)); };
    const std::uint64_t tagged = tag << 8;
    tell(tagged + 2, word.form);
    tell(tagged + 1, static_cast<std::uint64_t>(word.letterCase));
    tell(3, word.form);
    const std::size_t suffixes = std::min(word.size, LemmaTraits::suffixCount);
    for (std::size_t n = 0; n < suffixes; ++n)
        tell(tagged + 16 + n, word.suffixes[n]);
    for (std::size_t n = 2; n < suffixes && n < 6; ++n)
        tell(32 + n, word.suffixes[n]);
    for (std::size_t n = 0; n < word.size && n < LemmaTraits::prefixCount; ++n)
        tell(tagged + 48 + n, word.prefixes[n]);
    for (std::size_t n = 1; n < word.size && n < LemmaTraits::prefixCount; ++n)
        for (std::size_t m = 1; m < 3 && m < suffixes; ++m)
            tell(tagged + 64 + n * 4 + m, combined(word.prefixes[n], word.suffixes[m]));
    tell(tagged + 4, std::min<std::size_t>(word.size, 6));
}

/// Tells `take` the features that choose the casing.
template <typename Take>
void forEachCasingFeature(const LemmaTraits& word, UniversalPos pos, WordPlace place, Take take) {
    const auto tag = static_cast<std::uint64_t>(pos) + 1;
    const std::uint64_t letters =
        static_cast<std::uint64_t>(word.letterCase) * 4 + static_cast<std::uint64_t>(place) + 1;
    const auto tell = [&](std::uint64_t kind, std::uint64_t a, std::uint64_t b) {
        take(combined(combined((kind << 8) + 0xFF, a), b));
    };
    tell(4, word.form * 32 + tag, static_cast<std::uint64_t>(word.letterCase));
    tell(1, tag, letters);
    tell(2, tag, static_cast<std::uint64_t>(word.letterCase));
    tell(3, word.form, static_cast<std::uint64_t>(word.letterCase));
    tell(5, letters, std::min<std::size_t>(word.size, 6) * 32 + tag);
    for (std::size_t n = 1; n < std::min<std::size_t>(word.size, 4); ++n)
        tell(6 + n, word.suffixes[n] * 32 + tag, static_cast<std::uint64_t>(word.letterCase));
}

/// The feature that carries the `neighbourMark` of a word whose lemma hangs on its neighbours.
[[nodiscard]] inline std::uint64_t neighbourMarkOf(const LemmaTraits& word, UniversalPos pos) {
    return combined(combined(0xFE, word.form), static_cast<std::uint64_t>(pos));
}

/// The neighbour of a word on one side; the end of the sentence has the form 0.
struct LemmaNeighbour {
    std::uint64_t form = 0, ending = 0; ///< hashes of the form and of its last two characters
    std::uint64_t tag = 0;
};

[[nodiscard]] inline LemmaNeighbour lemmaNeighbourOf(const TaggedWord& word, CaseRules rules) {
    const LemmaTraits traits = lemmaTraitsOf(FoldedWord(word.form, rules));
    return {traits.form, traits.suffixes[1], static_cast<std::uint64_t>(word.pos) + 1};
}

/// Tells `take` the features that join a marked word with its neighbours.
template <typename Take>
void forEachNeighbourFeature(const LemmaTraits& word, UniversalPos pos, const LemmaNeighbour& before,
                             const LemmaNeighbour& after, Take take) {
    const std::uint64_t base = combined(neighbourMarkOf(word, pos), 1);
    const auto tell = [&](std::uint64_t kind, std::uint64_t value) { take(combined(base + kind, value)); };
    tell(1, before.form);
    tell(2, after.form);
    tell(3, before.tag);
    tell(4, after.tag);
    tell(5, before.tag * 32 + after.tag);
    tell(6, before.ending);
    tell(7, after.ending);
    tell(8, 0);
}

} // namespace lexiform::linguistics
