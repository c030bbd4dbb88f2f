#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lexiform::plist {

/// The value of a digit in a base of up to 16, letters in either case; nothing for other characters.
[[nodiscard]] std::optional<unsigned> digitOf(char character, unsigned base);

/// The string behind a quotation mark: `at` stands behind the opening one and is moved behind the closing
/// one. A backslash starts a letter for a control character, up to three octal digits for one of 256
/// characters, or U with up to four hexadecimal digits for a unit of UTF-16; before anything else it does not
/// count. Nothing when the string is not closed or a unit is half a character.
[[nodiscard]] std::optional<std::string> takeQuoted(std::string_view text, std::size_t& at, char mark);

} // namespace lexiform::plist
