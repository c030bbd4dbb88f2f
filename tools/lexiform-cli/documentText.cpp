#include "tools/lexiform-cli/documentText.h"

#include "base/Unicode.h"
#include "document/detection/detectFormat.h"
#include "document/readAttributedText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <optional>

namespace lexiform::cli {

namespace {

using document::Format;
using document::ReadFault;

// A character of UTF-8 has no more bytes behind its first.
constexpr std::size_t longestTail = 3;

std::string reasonOf(ReadFault fault) {
    switch (fault) {
    case ReadFault::unknownFormat:
        return "neither a text nor a document of a known format";
    case ReadFault::damaged:
        return "the document is damaged";
    case ReadFault::tooComplex:
        return "the document is nested deeper than can be read";
    case ReadFault::tooLarge:
        return "the document unpacks to more than can be read";
    }
    return "";
}

std::optional<Format> formatNamed(const std::string& type) {
    constexpr std::array<Format, 6> formats = {Format::plainText, Format::rtf,  Format::html,
                                               Format::odt,       Format::docx, Format::epub};
    const auto* const name = std::find(std::begin(typeNames), std::end(typeNames), type);
    if (name == std::end(typeNames)) return std::nullopt;
    return formats.at(static_cast<std::size_t>(name - std::begin(typeNames)));
}

} // namespace

bool beginsAsPlainUtf8(std::string_view start, bool isWhole) {
    if (start.empty()) return true;
    const auto invalid = firstInvalidUtf8(start);
    const bool isUtf8 = !invalid || (!isWhole && start.size() - *invalid <= longestTail);
    return isUtf8 && start.find('\0') == std::string_view::npos &&
           document::detectFormat(start) == Format::plainText;
}

Outcome<std::string, InputFault> documentText(std::string_view bytes, const std::string& type) {
    // No bytes are an empty text, which the reader of documents has no word for.
    if (bytes.empty()) return std::string();
    const auto text = document::readAttributedText(bytes, {formatNamed(type)});
    if (!text.succeeded()) return InputFault{reasonOf(text.fault())};
    return text.value().string();
}

} // namespace lexiform::cli
