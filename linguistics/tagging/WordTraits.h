#pragma once

#include "linguistics/tagging/LexiconEntry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lexiform::linguistics {

/// How a word uses capitals and digits.
enum class Casing : std::uint8_t { boundary, lower, capitalised, upper, oneCapital, mixed, digits, marks };

/// What a word shows by itself: hashes of its form and affixes, and what the lexicon knows of it.
struct WordTraits {
    static constexpr std::size_t suffixCount = 5;
    static constexpr std::size_t prefixCount = 4;

    std::uint64_t exact = 0;  ///< hash of the form as it stands
    std::uint64_t normal = 0; ///< hash of `normalForm`
    std::uint64_t shape = 0;
    std::array<std::uint64_t, suffixCount> suffixes{}; ///< of 1 to 5 bytes; 0 where the word is shorter
    std::array<std::uint64_t, prefixCount> prefixes{}; ///< of 1 to 4 bytes
    Casing casing = Casing::boundary;
    LexiconEntry entry;
};

/// The form under which a word is looked up: lower case, every digit 0, plain apostrophes, and one
/// form for all addresses.
[[nodiscard]] std::string normalForm(std::string_view word);

/// The traits of `word` but for the lexicon entry, which is left empty.
[[nodiscard]] WordTraits traitsOf(std::string_view word);

/// The traits of what stands before and after a sentence.
[[nodiscard]] WordTraits boundaryTraits();

} // namespace lexiform::linguistics
