#pragma once

#include "platform/qt/sidewindows/ManualLink.h"
#include "ports/PdfView.h"

#include <QPdfDocument>

#include <memory>
#include <string>

namespace lexiform::qt {

/// A PDF document as the core sees it.
class QtPdfDocument : public PdfDocument {
public:
    /// Null for a file that cannot be read or is no PDF document.
    [[nodiscard]] static std::shared_ptr<PdfDocument> read(const std::string& path);

    [[nodiscard]] QPdfDocument& document() { return document_; }
    [[nodiscard]] const QList<ManualLink>& links() const { return links_; }

private:
    QPdfDocument document_;
    QList<ManualLink> links_;
};

} // namespace lexiform::qt
