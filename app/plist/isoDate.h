#pragma once

#include <optional>
#include <string_view>

namespace lexiform::plist {

/// The seconds from the start of 2001 in UTC to the moment that a text such as 2026-03-14T09:26:53Z names,
/// which must be one of the calendar.
[[nodiscard]] std::optional<double> secondsOfIsoDate(std::string_view text);

} // namespace lexiform::plist
