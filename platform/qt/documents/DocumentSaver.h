#pragma once

#include "platform/qt/documents/DocumentQuestions.h"
#include "platform/qt/documents/OpenedDocument.h"
#include "platform/qt/documents/saveFile.h"

#include <functional>

namespace lexiform::qt {

/// Whether a window other than the document's shows the file at a path.
using OpenElsewhere = std::function<bool(const OpenedDocument& document, const QString& path)>;

/// Puts documents into files: asks where, and before anything of a person's would be lost.
class DocumentSaver {
public:
    /// `questions` must outlive the saver; `write` puts the bytes on the disk.
    DocumentSaver(DocumentQuestions& questions, FileSaver write, OpenElsewhere isOpenElsewhere);

    /// Saves to the document's own file. Asks where for a document that has none, or one of a type that
    /// is only viewed. False when nothing was saved.
    bool save(OpenedDocument& document);
    /// Asks where, and makes that the document's file; refuses one that another window shows, for the two
    /// would overwrite each other, and asks again.
    bool saveAs(OpenedDocument& document);

private:
    bool saveThere(OpenedDocument& document);
    bool saveHere(OpenedDocument& document);
    [[nodiscard]] std::optional<SaveTarget> chooseTarget(const OpenedDocument& document);
    bool write(OpenedDocument& document, const SaveTarget& target);
    [[nodiscard]] static SaveTarget proposalFor(const OpenedDocument& document);

    DocumentQuestions& questions_;
    FileSaver write_;
    OpenElsewhere isOpenElsewhere_;
};

} // namespace lexiform::qt
