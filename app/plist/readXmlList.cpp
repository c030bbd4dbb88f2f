#include "app/plist/readXmlList.h"

#include "app/plist/XmlListBuilder.h"

#include <string>

namespace lexiform::plist {

std::optional<PropertyList> readXmlList(std::string_view text) {
    // The mark overrules the declaration, which is of the bytes that the text was decoded from.
    constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
    std::string marked;
    marked.reserve(utf8Mark.size() + text.size());
    marked.append(utf8Mark).append(text);
    XmlListBuilder builder;
    if (!document::parseXml(marked, builder).succeeded()) return std::nullopt;
    return std::move(builder).take();
}

} // namespace lexiform::plist
