#pragma once

#include <string>
#include <string_view>

namespace lexiform::train {

/// Serbian in Latin letters, as UTF-8, respelt in Cyrillic ones; other characters stay.
[[nodiscard]] std::string serbianCyrillic(std::string_view latin);

} // namespace lexiform::train
