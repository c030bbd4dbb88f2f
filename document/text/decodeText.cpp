#include "document/text/decodeText.h"

#include "base/Unicode.h"
#include "document/text/CharsetDecoder.h"
#include "document/text/guessCharset.h"
#include "document/text/unmarkedUnicode.h"

#include <algorithm>
#include <array>

namespace lexiform::document {

namespace {

using namespace std::string_view_literals;

struct Mark {
    std::string_view bytes;
    std::string_view charset;
};

// The mark of UTF-32 in little endian starts with that of UTF-16.
constexpr std::array<Mark, 6> marks = {{
    {"\xEF\xBB\xBF"sv, "UTF-8"},
    {"\xFF\xFE\0\0"sv, "UTF-32LE"},
    {"\0\0\xFE\xFF"sv, "UTF-32BE"},
    {"\xFF\xFE"sv, "UTF-16LE"},
    {"\xFE\xFF"sv, "UTF-16BE"},
    {"\x84\x31\x95\x33"sv, "GB18030"},
}};

std::optional<std::string> decoded(std::string_view bytes, std::string_view charset) {
    auto decoder = CharsetDecoder::named(std::string(charset));
    if (!decoder) return std::nullopt;
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 2);
    decoder->append(bytes, text);
    return text;
}

// What no text in any 8-bit encoding has; the escape and the shifts belong to ISO 2022.
bool isBinary(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x08 || (byte >= 0x10 && byte < 0x1A) || (byte >= 0x1C && byte < 0x20);
}

} // namespace

std::optional<ByteOrderMark> byteOrderMarkOf(std::string_view bytes) {
    const auto mark = std::find_if(marks.begin(), marks.end(),
                                   [&](const Mark& candidate) { return bytes.starts_with(candidate.bytes); });
    if (mark == marks.end()) return std::nullopt;
    return ByteOrderMark{mark->charset, mark->bytes.size()};
}

std::optional<std::string> decodeText(std::string_view bytes) {
    if (const auto mark = byteOrderMarkOf(bytes)) return decoded(bytes.substr(mark->length), mark->charset);
    if (bytes.find('\0') != std::string_view::npos) {
        const auto charset = unmarkedUnicode(bytes);
        return charset ? decoded(bytes, *charset) : std::nullopt;
    }
    if (const auto charset = escapedCharset(bytes)) return decoded(bytes, *charset);
    if (!firstInvalidUtf8(bytes)) return std::string(bytes);
    if (std::any_of(bytes.begin(), bytes.end(), isBinary)) return std::nullopt;
    return decoded(bytes, guessCharset(bytes));
}

} // namespace lexiform::document
