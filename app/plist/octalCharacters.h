#pragma once

namespace lexiform::plist {

/// The character that an octal escape of this number, up to 0377, stands for: ASCII in the lower half, and in
/// the upper half the eight-bit set of the systems that the old text form comes from.
[[nodiscard]] char32_t octalCharacter(unsigned number);

} // namespace lexiform::plist
