#pragma once

#include "base/TextRange.h"

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

/// No paragraph is longer than this many bytes, so that memory stays bounded in any text.
inline constexpr std::size_t longestParagraph = std::size_t{32} * 1024;

/// The paragraph that starts at byte `start` of `text`, which must lie inside it. It reaches to the
/// end of the next blank line (the run of line breaks and of white space between them), or to the end
/// of the text. A longer one is cut after its last line break, else after its last white space, else
/// between two code points.
[[nodiscard]] TextRange paragraphAt(std::string_view text, std::size_t start);

} // namespace lexiform::linguistics
