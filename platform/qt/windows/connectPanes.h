#pragma once

#include "platform/qt/windows/DocumentPanes.h"
#include "platform/qt/windows/FindCommands.h"

namespace lexiform::qt {

/// Lets the panes of a window work on one another: a line of the key dims the other colours of the output,
/// a double click in the concordance finds the word in the output, and the output tells in words what
/// the key says of the word at the caret (to assistive technology) and under the pointer.
void connectPanes(DocumentPanes& panes, FindCommands& find);

/// The word of a line of the concordance, "word (3)"; empty for any other line.
[[nodiscard]] QString listedWord(const QString& line);

} // namespace lexiform::qt
