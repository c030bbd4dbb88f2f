#pragma once

#include "analysis/ViewController.h"
#include "base/Colour.h"

#include <cstdint>
#include <string_view>

namespace lexiform {

/// What the lexical pass does with the tokens of one tag.
struct ClassRow {
    enum class Key : std::uint8_t { none, lowerCased, asWritten };

    std::string_view tag;
    /// Where the word is counted; null when it is not.
    WordDictionary ViewController::*dictionary;
    /// The form in which it is counted.
    Key key;
    Colour colour;
};

/// The row for a tag of the scheme `NLTagSchemeNameTypeOrLexicalClass`. Every tag has one: those of
/// no class of their own share the row of other words, white space and punctuation.
[[nodiscard]] const ClassRow& classRow(std::string_view tag);

/// Counts `word` in the dictionary of the row, in the row's form; a row that counts nothing does nothing.
void countInClass(std::string_view word, const ClassRow& row, ViewController& controller);

} // namespace lexiform
