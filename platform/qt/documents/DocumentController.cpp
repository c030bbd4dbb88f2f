#include "platform/qt/documents/DocumentController.h"

#include "platform/qt/documents/readInBackground.h"
#include "platform/qt/documents/sameFile.h"
#include "platform/qt/windows/DocumentWindow.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace lexiform::qt {

namespace {

QStringList filesOf(const DocumentController::Documents& documents) {
    QStringList paths;
    for (const auto& document : documents)
        if (document->fileURL) paths.append(pathOf(*document));
    return paths;
}

} // namespace

DocumentController::DocumentController(std::shared_ptr<Storyboard> storyboard, DocumentServices services)
    : storyboard_(std::move(storyboard)), services_(std::move(services)),
      saver_(services_.questions, services_.save, [this](const auto& document, const QString& path) {
          return openedFrom(path, &document) != nullptr;
      }) {}

void DocumentController::newDocument() {
    const auto document = std::make_shared<OpenedDocument>(storyboard_);
    document->makeWindowControllers();
    show(document, untitledName());
}

bool DocumentController::open(const QStringList& paths) {
    std::vector<OpenFailure> failures;
    bool shown = false;
    for (const QString& path : paths) {
        if (const OpenedDocument* known = openedFrom(path)) {
            bringForward(*windowOf(*known));
            shown = true;
            continue;
        }
        auto outcome = read(path);
        if (!outcome.succeeded()) {
            // Whoever stopped it knows.
            if (outcome.fault() != OpenFault::cancelled) failures.push_back({path, outcome.fault()});
            continue;
        }
        outcome.value()->makeWindowControllers();
        show(outcome.value(), QFileInfo(path).fileName());
        noteFile(*outcome.value());
        shown = true;
    }
    if (!failures.empty()) services_.present(failures);
    return shown;
}

void DocumentController::openChosen() {
    open(services_.choose());
}

Outcome<std::shared_ptr<OpenedDocument>, OpenFault> DocumentController::read(const QString& path) {
    const FileStamp stamp = stampOf(path); // before reading, so that a later change is noticed
    auto bytes = readInBackground(path);
    if (!bytes.succeeded()) return bytes.fault();
    auto document = std::make_shared<OpenedDocument>(storyboard_);
    setPath(*document, path);
    document->fileType = typeOfFile(path, bytes.value());
    document->stamp = stamp;
    document->holdsBytesOfFile = true;
    if (!document->readFromData(std::move(bytes).value(), document->fileType).succeeded())
        return OpenFault::refused;
    return document;
}

void DocumentController::revert(OpenedDocument& document) {
    DocumentWindow& window = *windowOf(document);
    if (!document.fileURL) return;
    if (window.isEdited() && !services_.questions.askToRevert(window, window.displayName())) return;
    const QString path = pathOf(document);
    const FileStamp stamp = stampOf(path);
    auto bytes = readInBackground(path);
    if (!bytes.succeeded()) return services_.present({{path, bytes.fault()}});
    if (!document.readFromData(std::move(bytes).value(), document.fileType).succeeded())
        return services_.present({{path, OpenFault::refused}});
    document.stamp = stamp;
    document.holdsBytesOfFile = true;
    window.markSaved();
}

// Everybody is asked before the first window goes, so that a cancelled end leaves all of them.
void DocumentController::quit() {
    const Documents open = documents_;
    for (const auto& document : open)
        if (isOpen(*document) && !mayClose(*document)) return;
    rememberSession();
    quitting_ = true;
    for (const auto& document : open)
        if (isOpen(*document)) windowOf(*document)->close();
    QCoreApplication::quit();
    quitting_ = false;
}

OpenedDocument* DocumentController::openedFrom(const QString& path, const Document* butNot) const {
    for (const auto& document : documents_)
        if (document.get() != butNot && document->fileURL && isOpen(*document) &&
            isSameFile(pathOf(*document), path))
            return document.get();
    return nullptr;
}

QString DocumentController::untitledName() const {
    const auto isTaken = [this](const QString& name) {
        return std::any_of(documents_.begin(), documents_.end(), [&](const auto& document) {
            return !document->fileURL && isOpen(*document) && windowOf(*document)->displayName() == name;
        });
    };
    QString name = tr("Untitled");
    for (int number = 2; isTaken(name); ++number)
        name = tr("Untitled %1").arg(number);
    return name;
}

void DocumentController::show(const std::shared_ptr<OpenedDocument>& document, const QString& name) {
    documents_.push_back(document);
    DocumentWindow* window = windowOf(*document);
    if (!window) return;
    window->setDisplayName(name);
    window->markSaved(); // setting its panes up is no edit of anybody's
    connectWindow(*document);
    connectSaving(*document);
    window->show();
}

void DocumentController::connectWindow(OpenedDocument& document) {
    DocumentWindow* window = windowOf(document);
    FileMenu* menu = window->fileMenu();
    connect(menu, &FileMenu::newRequested, this, &DocumentController::newDocument);
    connect(menu, &FileMenu::openRequested, this, &DocumentController::openChosen);
    connect(menu, &FileMenu::recentRequested, this, [this](const QString& path) { open({path}); });
    connect(menu, &FileMenu::clearRecentRequested, this, [this] { services_.remembered.clearRecent(); });
    menu->setRecentFiles([this] { return services_.remembered.recent(); });
    menu->setReopens(services_.remembered.reopens());
    connect(menu, &FileMenu::reopensChanged, this,
            [this](bool reopens) { services_.remembered.setReopens(reopens); });
    connect(menu, &FileMenu::quitRequested, this, &DocumentController::quit);
    // Queued: the program that files are dragged from waits until the drop is taken.
    connect(window, &DocumentWindow::filesDropped, this, &DocumentController::open, Qt::QueuedConnection);
    // Queued: dropping the document deletes the window, which is still closing.
    connect(window, &DocumentWindow::closed, this, &DocumentController::dropClosed, Qt::QueuedConnection);
}

void DocumentController::connectSaving(OpenedDocument& document) {
    DocumentWindow* window = windowOf(document);
    FileMenu* menu = window->fileMenu();
    menu->setRevertible(document.fileURL.has_value());
    connect(menu, &FileMenu::saveRequested, this,
            [this, &document] { save(document, &DocumentSaver::save); });
    connect(menu, &FileMenu::saveAsRequested, this,
            [this, &document] { save(document, &DocumentSaver::saveAs); });
    connect(menu, &FileMenu::revertRequested, this, [this, &document] { revert(document); });
    connect(menu, &FileMenu::printRequested, this,
            [this, window] { services_.print(*window, *window->panes()); });
    window->setCloseQuestion([this, &document] { return quitting_ || mayClose(document); });
}

bool DocumentController::save(OpenedDocument& document, bool (DocumentSaver::*command)(OpenedDocument&)) {
    if (!(saver_.*command)(document)) return false;
    windowOf(document)->fileMenu()->setRevertible(true);
    noteFile(document);
    return true;
}

bool DocumentController::mayClose(OpenedDocument& document) {
    DocumentWindow& window = *windowOf(document);
    if (!window.isEdited()) return true;
    bringForward(window);
    switch (services_.questions.askToSave(window, window.displayName())) {
    case UnsavedAnswer::save:
        return save(document, &DocumentSaver::save);
    case UnsavedAnswer::discard:
        return true;
    case UnsavedAnswer::cancel:
        break;
    }
    return false;
}

void DocumentController::noteFile(const OpenedDocument& document) {
    services_.remembered.noteOpened(pathOf(document));
    rememberSession();
}

void DocumentController::rememberSession() {
    Documents open = documents_;
    std::erase_if(open, [](const auto& document) { return !isOpen(*document); });
    services_.remembered.setSession(filesOf(open));
}

// The window that closes last ends the program: what it showed is what was open at the end.
void DocumentController::dropClosed() {
    const Documents before = documents_;
    std::erase_if(documents_, [](const auto& document) { return !isOpen(*document); });
    if (documents_.size() == before.size()) return;
    services_.remembered.setSession(filesOf(documents_.empty() ? before : documents_));
}

} // namespace lexiform::qt
