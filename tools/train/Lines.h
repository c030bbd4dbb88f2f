#pragma once

#include <string_view>
#include <vector>

namespace lexiform::train {

/// The parts of `line` between `separator`s; one more than there are separators.
[[nodiscard]] std::vector<std::string_view> partsOf(std::string_view line, char separator);

} // namespace lexiform::train
