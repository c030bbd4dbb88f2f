#pragma once

#include <cstdint>

namespace lexiform::linguistics {

/// What lists and large texts tell of a word, whatever its context. All zero for an unknown word.
struct LexiconEntry {
    /// Groups words that occur in like contexts; 0 for none.
    std::uint16_t cluster = 0;
    /// Groups words that may have the same parts of speech; 0 for none.
    std::uint8_t ambiguity = 0;
    /// Bits of `WordList`.
    std::uint8_t lists = 0;

    bool operator==(const LexiconEntry&) const = default;
};

/// Lists that a word may stand in, as bits.
enum WordList : std::uint8_t {
    givenNames = 1,
    familyNames = 2,
    cityNames = 4,
    countryNames = 8,
    /// The words that hold sentences together; they tell what language a text is in.
    functionWords = 16,
};

} // namespace lexiform::linguistics
