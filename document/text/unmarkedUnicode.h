#pragma once

#include <optional>
#include <string_view>

namespace lexiform::document {

/// Which of UTF-32 and UTF-16, in either byte order and without a byte order mark, `bytes` are; nothing
/// when they are none. Only bytes with a zero among them can be told from other encodings.
[[nodiscard]] std::optional<std::string_view> unmarkedUnicode(std::string_view bytes);

} // namespace lexiform::document
