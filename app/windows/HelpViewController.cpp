#include "app/windows/HelpViewController.h"

#include "base/present.h"

#include <utility>

namespace lexiform {

HelpViewController::HelpViewController(std::shared_ptr<Bundle> bundle, PdfDocumentReader readDocument)
    : bundle_(std::move(bundle)), readDocument_(std::move(readDocument)) {}

// The base class's event is left out on purpose.
void HelpViewController::viewDidAppear() {
    const auto manual = present(bundle_).urlForResource("LexiformHelp", "pdf");
    // A program that was installed without its manual shows an empty help window.
    if (!manual) return;
    thePDFDocument = present(readDocument_)(*manual);
    present(helpPDFView).setDocument(thePDFDocument);
    helpPDFView->setAutoScales(true);
}

} // namespace lexiform
