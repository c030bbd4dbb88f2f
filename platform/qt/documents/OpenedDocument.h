#pragma once

#include "document/Document.h"
#include "platform/qt/documents/FileStamp.h"
#include "platform/qt/documents/FileType.h"

namespace lexiform::qt {

class DocumentWindow;

/// A document with what the desktop knows of its file.
class OpenedDocument : public Document {
public:
    using Document::Document;

    /// The type under which the file was read or last saved.
    std::string fileType = std::string(newDocumentType);
    /// The file as it was when it was read or last saved.
    FileStamp stamp;
    /// Whether `theData` is what the file holds, no save having replaced it.
    bool holdsBytesOfFile = false;
};

/// Null for a document whose scene is no document window, or whose window is gone.
[[nodiscard]] DocumentWindow* windowOf(const Document& document);

/// Whether the document has a window on screen.
[[nodiscard]] bool isOpen(const Document& document);

/// The path of the document's file; empty for a document that has none.
[[nodiscard]] QString pathOf(const Document& document);
void setPath(Document& document, const QString& path);

} // namespace lexiform::qt
