#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lexiform::plist {

/// The characters of a list in XML or in the old text form, as UTF-8 without a byte order mark: by its byte
/// order mark, as unmarked UTF-16 or UTF-32, by its XML declaration, and at last as UTF-8. Nothing when a
/// byte does not belong into that encoding.
[[nodiscard]] std::optional<std::string> decodeList(std::string_view bytes);

} // namespace lexiform::plist
