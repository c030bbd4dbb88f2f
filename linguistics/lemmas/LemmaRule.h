#pragma once

#include "linguistics/lemmas/FoldedWord.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>

namespace lexiform::linguistics {

/// What becomes of the capitals of a word in its lemma.
enum class LemmaCasing : std::uint8_t { lower, kept, capitalised, upper };

inline constexpr std::size_t lemmaCasingCount = 4;

/// Makes a lemma from a word by changing its two ends (after Straka 2018, "UDPipe 2.0 prototype"): after
/// the first `prefixKept` characters it puts `inserted` in the place of the next `prefixDropped`, and
/// `ending` in that of the last `suffixDropped`. So "gemacht" becomes "machen", "abgeholt" "abholen".
/// A whole rule gives `ending` for any word: "was" becomes "be".
struct LemmaRule {
    std::uint8_t prefixKept = 0, prefixDropped = 0, suffixDropped = 0;
    bool whole = false;
    std::u32string inserted{}, ending{};

    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the zero of a comparison for a pointer
    auto operator<=>(const LemmaRule&) const = default;

    /// Whether a word of `size` characters is long enough.
    [[nodiscard]] bool fits(std::size_t size) const {
        return whole || std::size_t{prefixKept} + prefixDropped + suffixDropped <= size;
    }
    /// Whether it changes nothing.
    [[nodiscard]] bool keepsAll() const {
        return !whole && prefixDropped == 0 && suffixDropped == 0 && inserted.empty() && ending.empty();
    }
};

/// The lemma that `rule`, which fits, makes of `word`, in UTF-8, with capitals by `casing`.
[[nodiscard]] std::string lemmaBy(const LemmaRule& rule, LemmaCasing casing, const FoldedWord& word,
                                  CaseRules rules);

} // namespace lexiform::linguistics
