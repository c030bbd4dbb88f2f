#pragma once

#include <unicode/utf8.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lexiform::linguistics {

/// One code point of a text, or a stretch of 1 to 3 bytes that is not UTF-8.
struct CodePoint {
    char32_t value = 0xFFFD;  ///< U+FFFD where the bytes are not UTF-8
    std::uint32_t length = 0; ///< bytes, at least 1
    bool valid = false;
};

/// The code point that starts at byte `at`, which must lie inside `text`.
[[nodiscard]] inline CodePoint codePointAt(std::string_view text, std::size_t at) {
    const auto first = static_cast<unsigned char>(text[at]);
    if (first < 0x80) return {first, 1, true};
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data()) + at;
    const auto available = static_cast<std::int32_t>(std::min<std::size_t>(text.size() - at, 4));
    std::int32_t length = 0;
    UChar32 value = 0;
    U8_NEXT(bytes, length, available, value);
    if (value < 0) return {0xFFFD, static_cast<std::uint32_t>(length), false};
    return {static_cast<char32_t>(value), static_cast<std::uint32_t>(length), true};
}

} // namespace lexiform::linguistics
