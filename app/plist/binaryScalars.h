#pragma once

#include "app/plist/PropertyList.h"

#include <optional>
#include <string_view>

namespace lexiform::plist {

/// The integer that 1, 2, 4, 8 or 16 bytes of a binary list are. Those of 8 and 16 have a sign; nothing for
/// one that does not fit into 64 bits.
[[nodiscard]] std::optional<PropertyList> binaryInteger(std::string_view bytes);

/// The identifier of up to 16 bytes, without a sign, as an integer.
[[nodiscard]] std::optional<PropertyList> binaryIdentifier(std::string_view bytes);

/// The number that 4 or 8 bytes are; nothing for another size.
[[nodiscard]] std::optional<PropertyList> binaryReal(std::string_view bytes);

/// The date that 8 bytes are; nothing for a moment that is not finite.
[[nodiscard]] std::optional<PropertyList> binaryDate(std::string_view bytes);

} // namespace lexiform::plist
