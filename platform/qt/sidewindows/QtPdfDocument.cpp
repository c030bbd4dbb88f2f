#include "platform/qt/sidewindows/QtPdfDocument.h"

namespace lexiform::qt {

std::shared_ptr<PdfDocument> QtPdfDocument::read(const std::string& path) {
    auto document = std::make_shared<QtPdfDocument>();
    document->document_.load(QString::fromStdString(path));
    if (document->document_.status() != QPdfDocument::Status::Ready) return nullptr;
    document->links_ = readManualLinks(QString::fromStdString(path));
    return document;
}

} // namespace lexiform::qt
