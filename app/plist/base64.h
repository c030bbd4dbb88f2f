#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lexiform::plist {

/// The bytes that a text in Base64 (RFC 4648) stands for, white space left out. Nothing for one with other
/// characters or without its padding.
[[nodiscard]] std::optional<std::string> decodeBase64(std::string_view text);

} // namespace lexiform::plist
