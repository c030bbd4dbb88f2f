#pragma once

#include "document/Document.h"
#include "platform/qt/documents/OpenFailure.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace lexiform::qt {

/// Asks the user for files to open; empty when there are none.
using FileChooser = std::function<QStringList()>;

/// The document machinery: makes documents, new or from files, with their windows, and keeps them
/// until their windows close.
class DocumentController : public QObject {
    Q_OBJECT

public:
    DocumentController(std::shared_ptr<Storyboard> storyboard, FailurePresenter present, FileChooser choose);

    /// Opens an untitled window.
    void newDocument();
    /// Opens a window per file, brings those forward that are open already, and tells of those that
    /// cannot be opened, all in one. True when at least one window is shown for them.
    bool open(const QStringList& paths);
    /// Lets the user choose what to open.
    void openChosen();

    /// The open documents, in the order of opening.
    [[nodiscard]] const std::vector<std::shared_ptr<Document>>& documents() const { return documents_; }

private:
    Outcome<std::shared_ptr<Document>, OpenFault> read(const QString& path);
    [[nodiscard]] Document* openedFrom(const QString& path) const;
    [[nodiscard]] QString untitledName() const;
    void show(const std::shared_ptr<Document>& document, const QString& name);
    void dropClosed();

    std::shared_ptr<Storyboard> storyboard_;
    FailurePresenter present_;
    FileChooser choose_;
    std::vector<std::shared_ptr<Document>> documents_;
};

} // namespace lexiform::qt
