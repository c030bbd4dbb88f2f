#include "document/rtf/RtfDecoder.h"

#include "base/present.h"
#include "document/rtf/rtfCodePages.h"
#include "document/text/utf8.h"

namespace lexiform::document {

namespace {

constexpr char32_t symbolArea = 0xF000;

std::string symbols(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes)
        appendCodePoint(symbolOf(symbolArea + static_cast<unsigned char>(byte)), text);
    return text;
}

} // namespace

char32_t symbolOf(char32_t codePoint) {
    switch (codePoint) {
    case 0xF020:
        return ' ';
    case 0xF0A7:
        return 0x25AA;
    case 0xF0B7:
        return 0x2022;
    default:
        return codePoint;
    }
}

std::string RtfDecoder::decoded(std::string_view bytes, std::int32_t codePage) {
    if (codePage == symbolCodePage) return symbols(bytes);
    if (isAscii(bytes)) return std::string(bytes);
    std::string text;
    decoderOf(codePage).append(bytes, text);
    return text;
}

CharsetDecoder& RtfDecoder::decoderOf(std::int32_t codePage) {
    const bool possible = codePage > 0 && codePage <= 0xFFFF;
    auto [entry, isNew] = decoders_.try_emplace(possible ? codePage : westernCodePage);
    if (isNew) entry->second = CharsetDecoder::named(charsetOfCodePage(entry->first));
    if (!entry->second) entry->second = CharsetDecoder::named(charsetOfCodePage(westernCodePage));
    if (!entry->second) fatalError("there is no converter for Western text");
    return *entry->second;
}

} // namespace lexiform::document
