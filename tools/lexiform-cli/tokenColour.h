#pragma once

#include "base/Colour.h"
#include "linguistics/text/Analysis.h"

#include <string_view>

namespace lexiform::cli {

/// The colour in which a window's output pane shows a token of `text`.
[[nodiscard]] Colour tokenColour(const linguistics::Token& token, std::string_view text);

} // namespace lexiform::cli
