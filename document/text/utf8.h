#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lexiform::document {

inline constexpr char32_t replacementCharacter = 0xFFFD;

/// Appends a code point as UTF-8. What is no Unicode scalar value becomes U+FFFD.
void appendCodePoint(char32_t codePoint, std::string& text);

/// The code point at `at`, which lies inside `text`, and `at` moved behind it. Bytes that are not UTF-8
/// give U+FFFD.
[[nodiscard]] char32_t takeCodePoint(std::string_view text, std::size_t& at);

[[nodiscard]] bool isAscii(std::string_view bytes);

} // namespace lexiform::document
