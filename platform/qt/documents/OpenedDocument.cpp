#include "platform/qt/documents/OpenedDocument.h"

#include "platform/qt/adapters/QtWindowController.h"
#include "platform/qt/windows/DocumentWindow.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

namespace lexiform::qt {

DocumentWindow* windowOf(const Document& document) {
    if (document.windowControllers.empty()) return nullptr;
    const auto controller = std::dynamic_pointer_cast<QtWindowController>(document.windowControllers.front());
    return controller ? qobject_cast<DocumentWindow*>(controller->window()) : nullptr;
}

bool isOpen(const Document& document) {
    const DocumentWindow* window = windowOf(document);
    return window && window->isVisible();
}

QString pathOf(const Document& document) {
    if (!document.fileURL) return {};
    return QFile::decodeName(QByteArray::fromStdString(*document.fileURL));
}

void setPath(Document& document, const QString& path) {
    document.fileURL = QFile::encodeName(QFileInfo(path).absoluteFilePath()).toStdString();
}

} // namespace lexiform::qt
