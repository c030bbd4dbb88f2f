#pragma once

#include "platform/qt/documents/OpenedDocument.h"

namespace lexiform::qt {

/// Whether the output pane, which is what a save writes, holds the characters that a person takes for the
/// document's text: those of the input pane and, unless they were edited, those of the file as it was read.
[[nodiscard]] bool savesItsText(const OpenedDocument& document);

} // namespace lexiform::qt
