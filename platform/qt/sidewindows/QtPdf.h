#pragma once

#include "platform/qt/sidewindows/ManualView.h"
#include "ports/PdfView.h"

#include <QPdfDocument>
#include <QPointer>

#include <memory>
#include <string>

namespace lexiform::qt {

class QtPdfDocument : public PdfDocument {
public:
    /// Null for a file that cannot be read or is no PDF document.
    [[nodiscard]] static std::shared_ptr<PdfDocument> read(const std::string& path);

    [[nodiscard]] QPdfDocument& document() { return document_; }

private:
    QPdfDocument document_;
};

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
