#include "document/rtf/RtfWriter.h"

#include "base/TextRange.h"
#include "document/rtf/RtfColours.h"
#include "document/rtf/rtfKeywords.h"
#include "document/text/utf8.h"

#include <unicode/utf16.h>

#include <algorithm>
#include <cstdint>

namespace lexiform::document {

namespace {

constexpr std::string_view fontTable = "{\\fonttbl{\\f0\\fswiss\\fcharset0 Noto Sans;}}";

std::size_t unitsOf(char32_t codePoint) {
    return codePoint > 0xFFFF ? 2 : 1;
}

/// The bytes of `text` that hold the code units of `range`.
std::optional<TextRange> bytesOf(std::string_view text, Utf16Range range) {
    if (range.length > text.size() || range.start > text.size()) return std::nullopt;
    std::size_t at = 0;
    std::size_t units = 0;
    const auto walkTo = [&](std::size_t end) {
        while (units < end && at < text.size())
            units += unitsOf(takeCodePoint(text, at));
        return units >= end;
    };
    // The last character that starts no later than the range does.
    std::size_t start = 0;
    while (units < range.start) {
        start = at;
        if (at == text.size()) return std::nullopt;
        units += unitsOf(takeCodePoint(text, at));
    }
    if (units == range.start) start = at;
    if (!walkTo(range.start + range.length)) return std::nullopt;
    return TextRange{start, range.length == 0 ? 0 : at - start};
}

bool isPlain(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte >= 0x20 && byte < 0x7F && character != '\\' && character != '{' && character != '}';
}

void appendUnit(std::uint32_t unit, std::string& rtf) {
    rtf.append("\\u").append(std::to_string(static_cast<std::int16_t>(unit))).append("?");
}

void appendEscaped(char32_t codePoint, std::string& rtf) {
    const auto point = static_cast<std::uint32_t>(codePoint);
    if (point > 0xFFFF) appendUnit(U16_LEAD(point), rtf);
    appendUnit(point > 0xFFFF ? U16_TRAIL(point) : point, rtf);
}

/// A line end that others show as `word`, and that is read back as the code points of `ends`.
void appendMarkedEnd(std::u32string_view ends, std::string_view word, std::string& rtf) {
    for (const char32_t end : ends)
        rtf.append("{\\*\\").append(ownLineEndWord).append(std::to_string(static_cast<std::uint32_t>(end))) +=
            '}';
    rtf.append(word).append("\n");
}

void appendSpecial(char32_t codePoint, std::string& rtf) {
    switch (codePoint) {
    case '\\':
    case '{':
    case '}':
        rtf += {'\\', static_cast<char>(codePoint)};
        return;
    case '\t':
        rtf += "\\tab ";
        return;
    case '\n':
        rtf += "\\par\n";
        return;
    case '\f':
        rtf += "\\page\n";
        return;
    case '\r':
    case 0x0085:
    case 0x2029:
        return appendMarkedEnd({&codePoint, 1}, "\\par", rtf);
    case '\v':
    case 0x2028:
        return appendMarkedEnd({&codePoint, 1}, "\\line", rtf);
    case 0x00A0:
        rtf += "\\~";
        return;
    default:
        return appendEscaped(codePoint, rtf);
    }
}

/// Every second space in a row goes by its number: some word processors make thin spaces of plain ones.
void appendPlain(std::string_view text, std::string& rtf) {
    for (std::size_t pair = text.find("  "); pair != std::string_view::npos; pair = text.find("  ")) {
        rtf.append(text.substr(0, pair + 1));
        appendEscaped(' ', rtf);
        text.remove_prefix(pair + 2);
    }
    rtf.append(text);
}

void appendText(std::string_view text, std::string& rtf) {
    std::size_t at = 0;
    while (at < text.size()) {
        const auto* const plainEnd = std::find_if_not(text.begin() + at, text.end(), isPlain);
        const auto end = static_cast<std::size_t>(plainEnd - text.begin());
        appendPlain(text.substr(at, end - at), rtf);
        at = end;
        if (text.substr(at).starts_with("\r\n")) {
            appendMarkedEnd(U"\r\n", "\\par", rtf);
            at += 2;
        } else if (at < text.size()) {
            appendSpecial(takeCodePoint(text, at), rtf);
        }
    }
}

} // namespace

std::size_t utf16Length(std::string_view text) {
    std::size_t units = 0;
    for (std::size_t at = 0; at < text.size();)
        units += unitsOf(takeCodePoint(text, at));
    return units;
}

std::string rtfHead() {
    return std::string("{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0").append(fontTable) + rtfColourTable() +
           "\n\\pard\\f0\\fs24\n";
}

void appendRtf(std::string_view text, Colour colour, std::string& rtf) {
    rtf.append("\\cf").append(std::to_string(rtfColourNumber(colour))) += ' ';
    appendText(text, rtf);
}

std::optional<std::string> writeRtf(const AttributedText& text, Utf16Range range) {
    const auto bytes = bytesOf(text.string(), range);
    if (!bytes) return std::nullopt;
    std::string rtf = rtfHead();
    rtf.reserve(bytes->length * 3);
    std::size_t start = bytes->start;
    for (const AttributedText::Run& run : text.runs()) {
        const std::size_t end = std::min(run.end, bytes->end());
        if (end <= start) continue;
        appendRtf(std::string_view(text.string()).substr(start, end - start), run.colour, rtf);
        start = end;
    }
    return rtf.append(rtfTail);
}

} // namespace lexiform::document
