#pragma once

#include "linguistics/Characters.h"

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

/// The unit that starts at byte `at` of `text`, which must lie inside it. A mark without a base is a
/// unit of class `mark`; line breaks and white space stand alone, but for \r\n.
[[nodiscard]] Unit unitAt(const Characters& characters, std::string_view text, std::size_t at);

} // namespace lexiform::linguistics
