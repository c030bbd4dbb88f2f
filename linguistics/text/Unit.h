#pragma once

#include "linguistics/text/Characters.h"

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

/// A character with all that belongs to it: combining marks, joined emoji, the other half of a flag.
/// Tokens are made of whole units.
struct Unit {
    std::size_t end = 0; ///< the byte after it
    char32_t base = 0;
    CharacterClass kind = CharacterClass::other;
};

/// `unitAt` for what more than one byte may belong to.
[[nodiscard]] Unit wideUnitAt(const Characters& characters, std::string_view text, std::size_t at);

/// The unit that starts at byte `at` of `text`, which must lie inside it. A mark without a base is a
/// unit of class `mark`; line breaks and white space stand alone, but for \r\n.
[[nodiscard]] inline Unit unitAt(const Characters& characters, std::string_view text, std::size_t at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    const bool alone = at + 1 >= text.size() || static_cast<unsigned char>(text[at + 1]) < 0x80;
    if (byte >= 0x80 || byte == '\r' || !alone) return wideUnitAt(characters, text, at);
    return {at + 1, byte, characters.classOf(char32_t{byte})};
}

} // namespace lexiform::linguistics
