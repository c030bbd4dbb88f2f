#pragma once

#include "platform/qt/windows/DocumentPanes.h"

#include <QTextDocument>

#include <memory>

namespace lexiform::qt {

/// What is printed of a window: the output pane and below it the colour key, in the colours that are for
/// white paper.
[[nodiscard]] std::unique_ptr<QTextDocument> printedDocument(const DocumentPanes& panes);

/// Shows the pages of the document in a window of their own, from where they can be printed.
void showPrintPreview(QWidget& window, const DocumentPanes& panes);

} // namespace lexiform::qt
