#pragma once

#include "app/AppServices.h"

namespace lexiform::qt {

/// Where the maker of this program is on the web; each program says so in a source file of its own.
[[nodiscard]] MakerAddresses makerAddresses();

} // namespace lexiform::qt
