#include "document/text/unmarkedUnicode.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace lexiform::document {

namespace {

// The start of a text tells; the whole is read when it is decoded.
constexpr std::size_t unicodeSample = std::size_t{1} << 16U;

enum class Order { little, big };

char32_t unitAt(std::string_view bytes, std::size_t at, std::size_t width, Order order) {
    char32_t unit = 0;
    for (std::size_t i = 0; i < width; ++i) {
        const std::size_t place = order == Order::big ? at + i : at + width - 1 - i;
        unit = (unit << 8U) | static_cast<unsigned char>(bytes[place]);
    }
    return unit;
}

bool isSpace(char32_t point) {
    return point == ' ' || (point >= '\t' && point <= '\r');
}

bool belongsIntoText(char32_t point) {
    if (point > 0x10FFFF) return false;
    if (isSpace(point) || point == 0xFEFF) return true;
    const auto type = u_charType(static_cast<UChar32>(point));
    return type != U_UNASSIGNED && type != U_CONTROL_CHAR && type != U_SURROGATE &&
           type != U_PRIVATE_USE_CHAR;
}

/// How many characters of ASCII the sample has; nothing when it is no text in this encoding.
std::optional<std::size_t> asciiIn(std::string_view bytes, std::size_t width, Order order) {
    std::size_t ascii = 0;
    std::size_t at = 0;
    while (at + width <= bytes.size()) {
        char32_t point = unitAt(bytes, at, width, order);
        at += width;
        if (width == 2 && U16_IS_LEAD(point)) {
            if (at + width > bytes.size()) break;
            const char32_t trail = unitAt(bytes, at, width, order);
            if (!U16_IS_TRAIL(trail)) return std::nullopt;
            point = static_cast<char32_t>(U16_GET_SUPPLEMENTARY(point, trail));
            at += width;
        }
        if (!belongsIntoText(point)) return std::nullopt;
        if (point < 0x80) ++ascii;
    }
    return ascii;
}

struct Candidate {
    std::string_view charset;
    std::size_t width;
    Order order;
};

constexpr std::array<Candidate, 4> candidates = {{
    {"UTF-32LE", 4, Order::little},
    {"UTF-32BE", 4, Order::big},
    {"UTF-16LE", 2, Order::little},
    {"UTF-16BE", 2, Order::big},
}};

} // namespace

std::optional<std::string_view> unmarkedUnicode(std::string_view bytes) {
    const std::string_view sample = bytes.substr(0, unicodeSample);
    std::optional<std::string_view> best;
    std::size_t mostAscii = 0;
    for (const Candidate& candidate : candidates) {
        // A text of whole units only; one that is cut short is told by its mark or not at all.
        if (bytes.size() % candidate.width != 0) continue;
        const auto ascii = asciiIn(sample, candidate.width, candidate.order);
        // Letters of every script share the spaces and line ends of ASCII.
        if (ascii && *ascii > mostAscii) {
            best = candidate.charset;
            mostAscii = *ascii;
        }
    }
    return best;
}

} // namespace lexiform::document
