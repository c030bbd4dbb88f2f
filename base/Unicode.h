#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lexiform {

/// The full Unicode default lower-case mapping of a UTF-8 text, the same in every locale (a Turkish
/// I gives i). Its length may differ from the text's. Bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string lowerCased(std::string_view text);

/// The offset in bytes of the first byte that is not part of well-formed UTF-8 (overlong forms,
/// surrogates and values past U+10FFFF are not); nothing when all of `bytes` is.
[[nodiscard]] std::optional<std::size_t> firstInvalidUtf8(std::string_view bytes);

} // namespace lexiform
