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

/// The text in normalisation form C, in which canonically equivalent texts are the same bytes.
/// Bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string composed(std::string_view text);

/// Whether a text is in normalisation form C already; false where only composing it would tell.
[[nodiscard]] bool isComposed(std::string_view text);

/// Whether two texts are canonically equivalent, so that a reader cannot tell them apart.
[[nodiscard]] bool canonicallyEqual(std::string_view a, std::string_view b);

/// The first `count` user-perceived characters (extended grapheme clusters) of a text, all of it when
/// it has no more.
[[nodiscard]] std::string_view firstCharacters(std::string_view text, std::size_t count);

} // namespace lexiform
