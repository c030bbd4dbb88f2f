#include "app/plist/readPropertyList.h"

#include "app/plist/decodeList.h"
#include "app/plist/limits.h"
#include "app/plist/readXmlList.h"

#include <algorithm>

namespace lexiform {

namespace {

bool startsAsMarkup(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    return start != std::string_view::npos && text[start] == '<';
}

} // namespace

std::optional<PropertyList> readPropertyList(std::string_view bytes) {
    if (bytes.empty() || bytes.size() > plist::mostBytes) return std::nullopt;
    const auto text = plist::decodeList(bytes);
    if (!text || !startsAsMarkup(*text)) return std::nullopt;
    return plist::readXmlList(*text);
}

} // namespace lexiform
