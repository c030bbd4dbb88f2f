#include "app/plist/decodeList.h"

#include "base/Unicode.h"
#include "document/text/CharsetDecoder.h"
#include "document/text/declaredCharset.h"
#include "document/text/decodeText.h"
#include "document/text/unmarkedUnicode.h"

namespace lexiform::plist {

namespace {

std::optional<std::string> decoded(std::string_view bytes, std::string_view charset) {
    auto decoder = document::CharsetDecoder::named(std::string(charset));
    std::string text;
    if (!decoder || !decoder->append(bytes, text)) return std::nullopt;
    return text;
}

} // namespace

std::optional<std::string> decodeList(std::string_view bytes) {
    if (const auto mark = document::byteOrderMarkOf(bytes))
        return decoded(bytes.substr(mark->length), mark->charset);
    if (bytes.find('\0') != std::string_view::npos) {
        const auto charset = document::unmarkedUnicode(bytes);
        return charset ? decoded(bytes, *charset) : std::nullopt;
    }
    if (const auto charset = document::xmlCharset(bytes)) return decoded(bytes, *charset);
    if (firstInvalidUtf8(bytes)) return std::nullopt;
    return std::string(bytes);
}

} // namespace lexiform::plist
