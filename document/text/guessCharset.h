#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lexiform::document {

/// The ISO 2022 character set whose escape sequences `bytes`, which are all below 80, hold; nothing when
/// they hold none.
[[nodiscard]] std::optional<std::string> escapedCharset(std::string_view bytes);

/// The name of the character set that `bytes`, which are not UTF-8, are most likely in. There is always
/// one, windows-1252 at last, in which every byte is a character.
[[nodiscard]] std::string guessCharset(std::string_view bytes);

} // namespace lexiform::document
