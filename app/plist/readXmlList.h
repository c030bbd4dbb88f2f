#pragma once

#include "app/plist/PropertyList.h"

#include <optional>
#include <string_view>

namespace lexiform::plist {

/// Reads a list in XML from its characters in UTF-8, whatever encoding they declare. The element `plist`
/// around the value may be missing. Nothing for what is not well-formed, has other elements or text out of
/// place, declares anything, or refers to an entity that it would have to declare.
[[nodiscard]] std::optional<PropertyList> readXmlList(std::string_view text);

} // namespace lexiform::plist
