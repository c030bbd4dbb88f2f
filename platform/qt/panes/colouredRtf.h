#pragma once

#include "base/AttributedText.h"

#include <string>

namespace lexiform::qt {

/// A coloured text as a small RTF document for the clipboard.
[[nodiscard]] std::string colouredRtf(const AttributedText& text);

} // namespace lexiform::qt
