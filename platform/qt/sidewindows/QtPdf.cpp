#include "platform/qt/sidewindows/QtPdf.h"

#include <utility>

namespace lexiform::qt {

std::shared_ptr<PdfDocument> QtPdfDocument::read(const std::string& path) {
    auto document = std::make_shared<QtPdfDocument>();
    document->document_.load(QString::fromStdString(path));
    if (document->document_.status() != QPdfDocument::Status::Ready) return nullptr;
    return document;
}

// The widget may outlive the document that only this view holds.
QtPdfView::~QtPdfView() {
    if (view_) view_->setDocument(nullptr);
}

void QtPdfView::setDocument(std::shared_ptr<PdfDocument> document) {
    const auto next = std::dynamic_pointer_cast<QtPdfDocument>(document);
    if (view_) view_->setDocument(next ? &next->document() : nullptr);
    shown_ = std::move(document);
}

void QtPdfView::setAutoScales(bool scales) {
    if (view_) view_->setFitted(scales);
}

} // namespace lexiform::qt
