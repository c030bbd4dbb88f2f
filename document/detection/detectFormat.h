#pragma once

#include "document/format/Format.h"

#include <optional>
#include <string_view>

namespace lexiform::document {

/// The format of a file by its content alone; nothing for bytes that are none of those that are known. What
/// is not begun as another format counts as plain text, which only decoding can tell from no text at all.
[[nodiscard]] std::optional<Format> detectFormat(std::string_view bytes);

} // namespace lexiform::document
