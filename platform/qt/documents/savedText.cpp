#include "platform/qt/documents/savedText.h"

#include "base/Unicode.h"
#include "document/readAttributedText.h"
#include "platform/qt/windows/DocumentWindow.h"

#include <optional>

namespace lexiform::qt {

namespace {

// As the document itself decodes it; nothing where it cannot.
std::optional<std::string> textOfFile(const Document& document) {
    if (document.theType == plainTextType) {
        if (firstInvalidUtf8(document.theData)) return std::nullopt;
        return document.theData;
    }
    auto text = document::readAttributedText(document.theData);
    if (!text.succeeded()) return std::nullopt;
    return text.value().string();
}

} // namespace

bool savesItsText(const OpenedDocument& document) {
    const DocumentWindow& window = *windowOf(document);
    const std::string output = window.panes()->output()->text();
    if (output != window.panes()->input()->text()) return false;
    if (window.isEdited() || !document.holdsBytesOfFile) return true;
    return textOfFile(document) == output;
}

} // namespace lexiform::qt
