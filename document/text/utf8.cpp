#include "document/text/utf8.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace lexiform::document {

void appendCodePoint(char32_t codePoint, std::string& text) {
    auto point = static_cast<UChar32>(codePoint);
    if (codePoint > 0x10FFFF || U_IS_SURROGATE(point)) point = replacementCharacter;
    std::array<std::uint8_t, U8_MAX_LENGTH> bytes{};
    std::size_t length = 0;
    U8_APPEND_UNSAFE(bytes.data(), length, point);
    text.append(reinterpret_cast<const char*>(bytes.data()), length);
}

char32_t takeCodePoint(std::string_view text, std::size_t& at) {
    const auto* data = reinterpret_cast<const std::uint8_t*>(text.data()) + at;
    // At most four bytes are looked at, so that the macro's 32-bit index never sees a long text.
    const auto window = static_cast<std::int32_t>(std::min<std::size_t>(text.size() - at, 4));
    std::int32_t used = 0;
    UChar32 point = 0;
    U8_NEXT_OR_FFFD(data, used, window, point);
    at += static_cast<std::size_t>(used);
    return static_cast<char32_t>(point);
}

bool isAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

} // namespace lexiform::document
