#pragma once

#include "base/TextRange.h"

#include <string_view>

namespace lexiform {

/// The tag of a punctuation mark at `mark` in `text`, by its first character and, for quotation marks
/// and hyphens, by what stands around it: the same mark opens in one language and closes in another.
[[nodiscard]] std::string_view punctuationTag(TextRange mark, std::string_view text);

} // namespace lexiform
