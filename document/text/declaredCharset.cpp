#include "document/text/declaredCharset.h"

#include "document/text/CharsetDecoder.h"
#include "document/text/decodeText.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lexiform::document {

namespace {

// No further into a page does a browser look (HTML standard, "prescan a byte stream").
constexpr std::size_t prescan = 1024;

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string loweredAscii(std::string_view bytes) {
    std::string result(bytes);
    std::transform(result.begin(), result.end(), result.begin(), lowered);
    return result;
}

/// The value behind `key`, an equals sign and perhaps a quotation mark.
std::optional<std::string> valueBehind(std::string_view text, std::string_view key) {
    constexpr std::string_view spaces = " \t\r\n\f";
    for (std::size_t at = text.find(key); at != std::string_view::npos; at = text.find(key, at + 1)) {
        std::string_view rest = text.substr(at + key.size());
        rest.remove_prefix(std::min(rest.find_first_not_of(spaces), rest.size()));
        if (!rest.starts_with('=')) continue;
        rest.remove_prefix(1);
        rest.remove_prefix(std::min(rest.find_first_not_of(" \t\r\n\f\"'"), rest.size()));
        const std::string_view value = rest.substr(0, rest.find_first_of(" \t\r\n\f\"';>?/"));
        if (!value.empty()) return std::string(value);
    }
    return std::nullopt;
}

// What pages call by the first name is in truth the second (Encoding standard, "Names and labels").
struct Label {
    std::string_view said;
    std::string_view meant;
};
constexpr std::array<Label, 10> labels = {{
    {"utf-16", "utf-8"},
    {"utf-16le", "utf-8"},
    {"utf-16be", "utf-8"},
    {"iso-8859-1", "windows-1252"},
    {"latin1", "windows-1252"},
    {"us-ascii", "windows-1252"},
    {"iso-8859-9", "windows-1254"},
    {"gb2312", "gb18030"},
    {"gbk", "gb18030"},
    {"euc-kr", "windows-949"},
}};

std::string meant(const std::string& said) {
    const auto* const label =
        std::find_if(labels.begin(), labels.end(), [&](const Label& entry) { return entry.said == said; });
    return label == labels.end() ? said : std::string(label->meant);
}

} // namespace

std::optional<std::string> xmlCharset(std::string_view bytes) {
    if (!bytes.starts_with("<?xml")) return std::nullopt;
    const std::string_view declaration = bytes.substr(0, std::min(bytes.find("?>"), prescan));
    const auto said = valueBehind(loweredAscii(declaration), "encoding");
    return said ? std::optional(meant(*said)) : std::nullopt;
}

std::optional<std::string> htmlCharset(std::string_view bytes) {
    const std::string head = loweredAscii(bytes.substr(0, prescan));
    for (std::size_t at = head.find("<meta"); at != std::string::npos; at = head.find("<meta", at + 1)) {
        const std::string_view tag = std::string_view(head).substr(at, head.find('>', at) - at);
        if (const auto said = valueBehind(tag, "charset")) return meant(*said);
    }
    return std::nullopt;
}

std::optional<std::string> decodeMarkup(std::string_view bytes) {
    if (byteOrderMarkOf(bytes) || bytes.find('\0') != std::string_view::npos) return decodeText(bytes);
    auto declared = xmlCharset(bytes);
    if (!declared) declared = htmlCharset(bytes);
    if (declared) {
        if (auto decoder = CharsetDecoder::named(*declared)) {
            std::string text;
            decoder->append(bytes, text);
            return text;
        }
    }
    return decodeText(bytes);
}

} // namespace lexiform::document
