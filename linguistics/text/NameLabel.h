#pragma once

#include "linguistics/text/Analysis.h"

#include <cstddef>
#include <cstdint>

namespace lexiform::linguistics {

/// What a word is to a name: outside, its first word, or a further one (Ramshaw and Marcus 1995,
/// "Text chunking using transformation-based learning").
enum class NameLabel : std::uint8_t {
    outside,
    beginsPerson,
    insidePerson,
    beginsPlace,
    insidePlace,
    beginsOrganization,
    insideOrganization,
};

inline constexpr std::size_t nameLabelCount = 7;

[[nodiscard]] constexpr NameType nameTypeOf(NameLabel label) {
    return static_cast<NameType>((static_cast<std::uint8_t>(label) + 1) / 2);
}
[[nodiscard]] constexpr bool beginsName(NameLabel label) {
    return static_cast<std::uint8_t>(label) % 2 == 1;
}

/// Whether `next` may follow `previous`: a further word needs a word of the same name before it.
[[nodiscard]] constexpr bool mayFollow(NameLabel previous, NameLabel next) {
    const bool further = next != NameLabel::outside && !beginsName(next);
    return !further || nameTypeOf(previous) == nameTypeOf(next);
}

} // namespace lexiform::linguistics
