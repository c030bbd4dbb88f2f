#pragma once

#include "platform/qt/documents/DocumentQuestions.h"
#include "platform/qt/documents/OpenedDocument.h"
#include "platform/qt/documents/saveFile.h"

namespace lexiform::qt {

/// Puts documents into files: asks where, and before anything of a person's would be lost.
class DocumentSaver {
public:
    /// `questions` must outlive the saver; `write` puts the bytes on the disk.
    DocumentSaver(DocumentQuestions& questions, FileSaver write);

    /// Saves to the document's own file. Asks where for a document that has none, or one of a type that
    /// is only viewed. False when nothing was saved.
    bool save(OpenedDocument& document);
    /// Asks where, and makes that the document's file.
    bool saveAs(OpenedDocument& document);

private:
    bool saveThere(OpenedDocument& document);
    bool saveHere(OpenedDocument& document);
    bool write(OpenedDocument& document, const SaveTarget& target);
    [[nodiscard]] static SaveTarget proposalFor(const OpenedDocument& document);

    DocumentQuestions& questions_;
    FileSaver write_;
};

} // namespace lexiform::qt
