#include "app/plist/readPropertyList.h"

#include "app/plist/BinaryTrailer.h"
#include "app/plist/decodeList.h"
#include "app/plist/limits.h"
#include "app/plist/readBinaryList.h"
#include "app/plist/readTextList.h"
#include "app/plist/readXmlList.h"

namespace lexiform {

namespace {

bool startsAsMarkup(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    return start != std::string_view::npos && text[start] == '<';
}

} // namespace

std::optional<PropertyList> readPropertyList(std::string_view bytes) {
    if (bytes.empty() || bytes.size() > plist::mostBytes) return std::nullopt;
    if (bytes.starts_with(plist::binaryMark)) return plist::readBinaryList(bytes);
    const auto text = plist::decodeList(bytes);
    if (!text) return std::nullopt;
    // Data in the old text form starts with the same sign.
    if (startsAsMarkup(*text))
        if (auto list = plist::readXmlList(*text)) return list;
    return plist::readTextList(*text);
}

} // namespace lexiform
