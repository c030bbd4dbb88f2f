#pragma once

#include "app/plist/PropertyList.h"

#include <optional>
#include <string_view>

namespace lexiform {

/// Reads a property list in XML, in the binary form or in the old text form; the bytes alone tell which.
/// Nothing when they are none of these or go over the limits of `plist/limits.h`, in time and memory that are
/// linear in their number.
///
/// - Of equal keys in a dictionary the last one wins.
/// - In the old text form every value is a string, data, an array or a dictionary, and a single word or
///   quoted string is a whole list. White space alone is none, and neither is a dictionary without braces.
/// - An integer that 64 bits with a sign cannot hold and a real number out of range make the list none.
[[nodiscard]] std::optional<PropertyList> readPropertyList(std::string_view bytes);

} // namespace lexiform
