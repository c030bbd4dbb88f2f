#pragma once

#include "base/AttributedText.h"

#include <string>

namespace lexiform::qt {

/// A coloured text as an HTML fragment, in UTF-8, that keeps its spaces and lines.
[[nodiscard]] std::string colouredHtml(const AttributedText& text);

} // namespace lexiform::qt
