#include "document/Document.h"

#include "analysis/ViewController.h"
#include "base/Unicode.h"
#include "base/present.h"

#include <utility>

namespace lexiform {

namespace {

constexpr std::string_view documentScene = "Document Window Controller";

// A text that is not UTF-8 is not guessed at, and its absence from the pane is the only message.
void loadPlainText(const std::string& bytes, ViewController& content) {
    if (firstInvalidUtf8(bytes)) return;
    content.setInputText(bytes);
}

} // namespace

DocumentError documentError() {
    return {std::string(NSOSStatusErrorDomain), unimplementedStatus};
}

Document::Document(std::shared_ptr<Storyboard> storyboard) : storyboard_(std::move(storyboard)) {}

Outcome<Done, DocumentError> Document::readFromData(std::string bytes, std::string type) {
    if (bytes.empty()) return documentError();
    theData = std::move(bytes);
    thePath = present(fileURL);
    theType = std::move(type);
    return Done{};
}

void Document::makeWindowControllers() {
    auto made = std::dynamic_pointer_cast<WindowController>(
        present(storyboard_).instantiateController(documentScene));
    if (!made) fatalError("the document scene is no window controller");
    windowControllers.push_back(std::move(made));

    const auto content =
        std::dynamic_pointer_cast<ViewController>(windowControllers.front()->contentViewController());
    if (!content) return;
    // A new document leaves the input pane as the window made it.
    if (theData.empty()) return;
    if (theType == plainTextType)
        loadPlainText(theData, *content);
    else
        content->setInputText(""); // no reader accepts the bytes of any other type
}

} // namespace lexiform
