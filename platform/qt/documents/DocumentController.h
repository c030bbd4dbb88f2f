#pragma once

#include "platform/qt/documents/DocumentSaver.h"
#include "platform/qt/documents/OpenFailure.h"
#include "platform/qt/documents/OpenedDocument.h"
#include "platform/qt/documents/RememberedFiles.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace lexiform::qt {

class DocumentPanes;

/// Asks the user for files to open; empty when there are none.
using FileChooser = std::function<QStringList()>;
/// Lets the user print what a window shows.
using PanesPrinter = std::function<void(QWidget& window, const DocumentPanes& panes)>;

/// What the document machinery asks of a person and of the disk. The references must outlive it.
struct DocumentServices {
    FailurePresenter present;
    FileChooser choose;
    DocumentQuestions& questions;
    RememberedFiles& remembered;
    FileSaver save;
    PanesPrinter print;
};

/// The document machinery: makes documents, new or from files, with their windows, keeps them until their
/// windows close, and does what their File menus ask for.
class DocumentController : public QObject {
    Q_OBJECT

public:
    using Documents = std::vector<std::shared_ptr<OpenedDocument>>;

    DocumentController(std::shared_ptr<Storyboard> storyboard, DocumentServices services);

    /// Opens an untitled window.
    void newDocument();
    /// Opens a window per file, brings those forward that are open already, and tells of those that
    /// cannot be opened, all in one. True when at least one window is shown for them.
    bool open(const QStringList& paths);
    /// Lets the user choose what to open.
    void openChosen();
    /// Goes back to what the document's file holds, which by rule does not reach the input pane.
    void revert(OpenedDocument& document);
    /// Closes all windows and ends the program, unless the person keeps an edited document from it.
    void quit();

    /// The open documents, in the order of opening.
    [[nodiscard]] const Documents& documents() const { return documents_; }

private:
    Outcome<std::shared_ptr<OpenedDocument>, OpenFault> read(const QString& path);
    /// The open document of the file, be it under another name; null when there is none but `butNot`.
    [[nodiscard]] OpenedDocument* openedFrom(const QString& path, const Document* butNot = nullptr) const;
    [[nodiscard]] QString untitledName() const;
    void show(const std::shared_ptr<OpenedDocument>& document, const QString& name);
    void connectWindow(OpenedDocument& document);
    void connectSaving(OpenedDocument& document);
    bool save(OpenedDocument& document, bool (DocumentSaver::*command)(OpenedDocument&));
    bool mayClose(OpenedDocument& document);
    void noteFile(const OpenedDocument& document);
    void rememberSession();
    void dropClosed();

    std::shared_ptr<Storyboard> storyboard_;
    DocumentServices services_;
    DocumentSaver saver_;
    Documents documents_;
    bool quitting_ = false;
};

} // namespace lexiform::qt
