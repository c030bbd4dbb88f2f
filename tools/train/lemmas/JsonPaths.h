#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// Tells `visitor` each string value of a JSON text of objects, arrays and strings, with the names of the
/// objects' members that lead to it. What is no such text is read as far as it goes.
void forEachJsonString(
    std::string_view json,
    const std::function<void(const std::vector<std::string>& names, const std::string& value)>& visitor);

} // namespace lexiform::train
