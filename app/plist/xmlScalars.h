#pragma once

#include "app/plist/PropertyList.h"

#include <optional>
#include <string>
#include <string_view>

namespace lexiform::plist {

/// Whether an element of this name holds a value that is no array and no dictionary.
[[nodiscard]] bool isXmlScalar(std::string_view element);

/// The value of such an element with this text; nothing when the text is not of its type. White space around
/// a number or a date does not count, nor any in data; a truth value has no text.
[[nodiscard]] std::optional<PropertyList> readXmlScalar(std::string_view element, std::string text);

} // namespace lexiform::plist
