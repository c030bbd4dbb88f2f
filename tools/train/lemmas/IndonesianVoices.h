#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lexiform::train {

/// The passive of an Indonesian verb, with di-, by its `active` form with meN- and its `root`: "menggunakan"
/// of "guna" gives "digunakan". Nothing for a word that is not made so.
[[nodiscard]] std::optional<std::string> indonesianPassive(std::string_view active, std::string_view root);

} // namespace lexiform::train
