#pragma once

#include "app/plist/PropertyList.h"

#include <optional>
#include <string_view>

namespace lexiform::plist {

/// Reads a list in the binary form. Identifiers become integers. Nothing for one with an object that lies
/// outside, is cut short, holds itself, or is of a kind that only archives have (null, sets).
[[nodiscard]] std::optional<PropertyList> readBinaryList(std::string_view bytes);

} // namespace lexiform::plist
