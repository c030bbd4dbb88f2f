#pragma once

#include "linguistics/text/Utf8.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace lexiform::linguistics {

/// What a character does in a text, as far as cutting it into tokens goes.
enum class CharacterClass : std::uint8_t {
    letter,       ///< of a script that separates words
    joinedLetter, ///< of a script that writes words without spaces: a dictionary finds their ends
    digit,        ///< and other numerals
    mark,         ///< belongs to the character before it: combining marks, joiners, variation selectors
    space,        ///< white space that stays on the line
    lineBreak,    ///< \n, \r, VT, FF, U+0085, U+2028, U+2029
    punctuation,
    symbol,
    pictograph,        ///< emoji and their like
    regionalIndicator, ///< half a flag
    other,             ///< controls, unassigned characters, bytes that are not UTF-8
};

/// The class and script of every character, by Unicode's properties; a table for the basic
/// multilingual plane, since ICU's own look-up is several times slower.
class Characters {
public:
    /// The table, made when it is first asked for; lasts as long as the program.
    [[nodiscard]] static const Characters& table();

    [[nodiscard]] CharacterClass classOf(char32_t value) const {
        return value < planeSize ? classes_[value] : computedClass(value);
    }
    [[nodiscard]] CharacterClass classOf(CodePoint point) const {
        return point.valid ? classOf(point.value) : CharacterClass::other;
    }
    /// ISO 15924; empty for characters that several scripts share, and for unknown ones. Lasts as
    /// long as the program.
    [[nodiscard]] std::string_view scriptOf(char32_t value) const;

private:
    static constexpr std::size_t planeSize = 0x10000;

    Characters();
    [[nodiscard]] static CharacterClass computedClass(char32_t value);

    std::array<CharacterClass, planeSize> classes_{};
    std::array<std::uint8_t, planeSize> scripts_{};
};

/// Whether a character is an upper-case or title-case letter.
[[nodiscard]] bool isUpperCase(char32_t value);
/// Whether a character is a lower-case letter.
[[nodiscard]] bool isLowerCase(char32_t value);

} // namespace lexiform::linguistics
