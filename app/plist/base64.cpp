#include "app/plist/base64.h"

#include <cstddef>
#include <cstdint>

namespace lexiform::plist {

namespace {

std::optional<std::uint32_t> sextetOf(char digit) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t place = digits.find(digit);
    return place == std::string_view::npos ? std::nullopt : std::optional(static_cast<std::uint32_t>(place));
}

bool isSpace(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

} // namespace

std::optional<std::string> decodeBase64(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    std::size_t digits = 0;
    std::size_t padding = 0;
    for (const char character : text) {
        if (isSpace(character)) continue;
        const auto sextet = character == '=' ? std::optional<std::uint32_t>(0) : sextetOf(character);
        if (!sextet || (padding > 0 && character != '=')) return std::nullopt;
        padding += character == '=' ? 1 : 0;
        bits = (bits << 6U) | *sextet;
        if (++digits % 4 != 0) continue;
        for (const std::uint32_t shift : {16U, 8U, 0U})
            bytes += static_cast<char>((bits >> shift) & 0xFFU);
    }
    if (digits % 4 != 0 || padding > 2) return std::nullopt;
    bytes.resize(bytes.size() - padding);
    return bytes;
}

} // namespace lexiform::plist
