#include "document/Document.h"

#include "analysis/ViewController.h"
#include "base/Unicode.h"
#include "base/present.h"
#include "document/readAttributedText.h"
#include "document/rtf/RtfWriter.h"

#include <utility>

namespace lexiform {

namespace {

constexpr std::string_view documentScene = "Document Window Controller";

// A text that is not UTF-8 is not guessed at, and its absence from the pane is the only message.
void loadPlainText(const std::string& bytes, ViewController& content) {
    if (firstInvalidUtf8(bytes)) return;
    content.setInputText(bytes);
}

// Of a text in any other format its characters count; a text that cannot be read is an empty one.
void loadRichText(const std::string& bytes, ViewController& content) {
    const auto text = document::readAttributedText(bytes);
    content.setInputText(text.succeeded() ? text.value().string() : std::string());
}

std::string plainText(const TextPane& output) {
    std::string text = output.plainText();
    return firstInvalidUtf8(text) ? std::string() : text;
}

Outcome<std::string, DocumentError> richText(TextPane& output) {
    TextStorage* const storage = output.textStorage();
    if (!storage) fatalError("the output pane has no text storage");
    const AttributedText text = storage->attributedText();
    auto rtf = document::writeRtf(text, {0, document::utf16Length(text.string())});
    if (!rtf) return documentError();
    return std::move(*rtf);
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
        loadRichText(theData, *content);
}

Outcome<std::string, DocumentError> Document::dataOfType(std::string_view type) {
    if (windowControllers.empty()) fatalError("a document without a window is saved");
    const auto content =
        std::dynamic_pointer_cast<ViewController>(windowControllers.front()->contentViewController());
    if (!content) return documentError();
    TextPane& output = present(content->outtextTextbox);
    if (type == plainTextType) return plainText(output);
    return richText(output);
}

} // namespace lexiform
