#pragma once

#include <memory>

namespace lexiform {

/// A PDF document that has been read. The core only hands it to a view.
class PdfDocument {
public:
    virtual ~PdfDocument() = default;
};

/// Shows the pages of a document.
class PdfView {
public:
    virtual ~PdfView() = default;

    /// Null for none. The view keeps the document until it gets another.
    virtual void setDocument(std::shared_ptr<PdfDocument> document) = 0;
    /// Whether pages are fitted to the view.
    virtual void setAutoScales(bool scales) = 0;
};

} // namespace lexiform
