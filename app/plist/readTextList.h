#pragma once

#include "app/plist/PropertyList.h"

#include <optional>
#include <string_view>

namespace lexiform::plist {

/// Reads a list in the old text form, `{ key = value; }`, `( value, value )`, `word`, `"string"` and
/// `<data>`, from its characters in UTF-8. Behind the last value of an array there may be a comma. Nothing
/// when anything but white space and comments follows the list.
[[nodiscard]] std::optional<PropertyList> readTextList(std::string_view text);

} // namespace lexiform::plist
