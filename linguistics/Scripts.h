#pragma once

#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// The ISO 15924 codes of the scripts that a language (BCP 47) is usually written in, "Hani", "Hira" and
/// "Kana" for Japanese; empty for a language that is not known. The codes last for ever.
[[nodiscard]] std::vector<std::string_view> scriptsOf(std::string_view language);

} // namespace lexiform::linguistics
