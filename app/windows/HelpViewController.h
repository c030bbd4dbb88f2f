#pragma once

#include "ports/Bundle.h"
#include "ports/PdfView.h"
#include "ports/ViewControllerBase.h"

#include <functional>
#include <memory>
#include <string>

namespace lexiform {

/// Reads the PDF document at a path; null when it cannot be read.
using PdfDocumentReader = std::function<std::shared_ptr<PdfDocument>(const std::string& path)>;

/// The content of a help window: the manual, read anew whenever the window comes on screen.
class HelpViewController : public ViewControllerBase {
public:
    HelpViewController(std::shared_ptr<Bundle> bundle, PdfDocumentReader readDocument);

    /// The manual that was read last; null for one that could not be read.
    std::shared_ptr<PdfDocument> thePDFDocument;
    /// The window's layout connects it before the window comes on screen.
    std::shared_ptr<PdfView> helpPDFView;

    /// Without a manual the view stays as it was.
    void viewDidAppear() override;

private:
    std::shared_ptr<Bundle> bundle_;
    PdfDocumentReader readDocument_;
};

} // namespace lexiform
