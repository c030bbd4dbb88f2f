#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace lexiform::train {

/// Gives `take` every string of a JSON text in its order, keys and values alike, and how many objects and
/// lists it stands in. What follows a broken string is left out.
void eachString(std::string_view json,
                const std::function<void(const std::string& string, std::size_t depth)>& take);

} // namespace lexiform::train
