#pragma once

#include "platform/qt/sidewindows/ManualView.h"
#include "ports/PdfView.h"

#include <QPointer>

#include <memory>

namespace lexiform::qt {

/// The manual's view as the core sees it. It does nothing once the widget is gone.
class QtPdfView : public PdfView {
public:
    explicit QtPdfView(ManualView* view) : view_(view) {}
    ~QtPdfView() override;
    QtPdfView(const QtPdfView&) = delete;
    QtPdfView& operator=(const QtPdfView&) = delete;

    void setDocument(std::shared_ptr<PdfDocument> document) override;
    void setAutoScales(bool scales) override;

private:
    QPointer<ManualView> view_;
    std::shared_ptr<PdfDocument> shown_;
};

} // namespace lexiform::qt
