#include "platform/qt/sidewindows/QtPdfView.h"

#include "platform/qt/sidewindows/QtPdfDocument.h"

#include <utility>

namespace lexiform::qt {

// The widget may outlive the document that only this view holds.
QtPdfView::~QtPdfView() {
    if (view_) view_->setDocument(nullptr);
}

void QtPdfView::setDocument(std::shared_ptr<PdfDocument> document) {
    const auto next = std::dynamic_pointer_cast<QtPdfDocument>(document);
    if (view_ && next) view_->setDocument(&next->document(), next->links());
    if (view_ && !next) view_->setDocument(nullptr);
    shown_ = std::move(document);
}

void QtPdfView::setAutoScales(bool scales) {
    if (view_) view_->setFitted(scales);
}

} // namespace lexiform::qt
