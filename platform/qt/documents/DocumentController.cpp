#include "platform/qt/documents/DocumentController.h"

#include "platform/qt/adapters/QtWindowController.h"
#include "platform/qt/documents/readFile.h"
#include "platform/qt/windows/DocumentWindow.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace lexiform::qt {

namespace {

// Null for a document whose scene is no document window.
DocumentWindow* windowOf(const Document& document) {
    if (document.windowControllers.empty()) return nullptr;
    const auto controller = std::dynamic_pointer_cast<QtWindowController>(document.windowControllers.front());
    return controller ? qobject_cast<DocumentWindow*>(controller->window()) : nullptr;
}

bool isOpen(const Document& document) {
    const DocumentWindow* window = windowOf(document);
    return window && window->isVisible();
}

std::string fileLocation(const QString& path) {
    return QFile::encodeName(QFileInfo(path).absoluteFilePath()).toStdString();
}

QString canonical(const std::string& location) {
    return QFileInfo(QFile::decodeName(QByteArray::fromStdString(location))).canonicalFilePath();
}

} // namespace

DocumentController::DocumentController(std::shared_ptr<Storyboard> storyboard, FailurePresenter present,
                                       FileChooser choose)
    : storyboard_(std::move(storyboard)), present_(std::move(present)), choose_(std::move(choose)) {}

void DocumentController::newDocument() {
    const auto document = std::make_shared<Document>(storyboard_);
    document->makeWindowControllers();
    show(document, untitledName());
}

bool DocumentController::open(const QStringList& paths) {
    std::vector<OpenFailure> failures;
    for (const QString& path : paths) {
        if (const Document* known = openedFrom(path)) {
            bringForward(*windowOf(*known));
            continue;
        }
        auto outcome = read(path);
        if (!outcome.succeeded()) {
            failures.push_back({path, outcome.fault()});
            continue;
        }
        outcome.value()->makeWindowControllers();
        show(outcome.value(), QFileInfo(path).fileName());
    }
    if (!failures.empty()) present_(failures);
    return failures.size() < static_cast<std::size_t>(paths.size());
}

void DocumentController::openChosen() {
    open(choose_());
}

Outcome<std::shared_ptr<Document>, OpenFault> DocumentController::read(const QString& path) {
    auto bytes = readFile(path);
    if (!bytes.succeeded()) return bytes.fault();
    auto document = std::make_shared<Document>(storyboard_);
    document->fileURL = fileLocation(path);
    const auto outcome = document->readFromData(std::move(bytes).value(), std::string(plainTextType));
    if (!outcome.succeeded()) return OpenFault::refused;
    return document;
}

// Two paths of one file, a link among them, are the same document.
Document* DocumentController::openedFrom(const QString& path) const {
    const QString wanted = QFileInfo(path).canonicalFilePath();
    if (wanted.isEmpty()) return nullptr;
    for (const auto& document : documents_)
        if (document->fileURL && isOpen(*document) && canonical(*document->fileURL) == wanted)
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

void DocumentController::show(const std::shared_ptr<Document>& document, const QString& name) {
    documents_.push_back(document);
    DocumentWindow* window = windowOf(*document);
    if (!window) return;
    window->setDisplayName(name);
    connect(window, &DocumentWindow::newRequested, this, &DocumentController::newDocument);
    connect(window, &DocumentWindow::openRequested, this, &DocumentController::openChosen);
    // Queued: dropping the document deletes the window, which is still closing.
    connect(window, &DocumentWindow::closed, this, &DocumentController::dropClosed, Qt::QueuedConnection);
    window->show();
}

void DocumentController::dropClosed() {
    std::erase_if(documents_, [](const auto& document) { return !isOpen(*document); });
}

} // namespace lexiform::qt
