#include "platform/qt/adapters/QtTextPane.h"

namespace lexiform::qt {

std::string QtTextPane::plainText() const {
    return edit_ ? edit_->text() : std::string();
}

TextStorage* QtTextPane::textStorage() {
    return edit_ ? this : nullptr;
}

void QtTextPane::replace(const AttributedText& text) {
    if (edit_) edit_->replaceText(text);
}

void QtTextPane::append(const AttributedText& text) {
    if (edit_) edit_->appendText(text);
}

} // namespace lexiform::qt
