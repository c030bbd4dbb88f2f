#include "platform/qt/adapters/QtTextPane.h"

#include <QScrollBar>

namespace lexiform::qt {

std::string QtTextPane::plainText() const {
    return edit_ ? edit_->text() : std::string();
}

TextStorage* QtTextPane::textStorage() {
    return edit_ ? this : nullptr;
}

void QtTextPane::replace(const AttributedText& text) {
    if (!edit_) return;
    const int place = edit_->verticalScrollBar()->value();
    edit_->replaceText(text);
    if (after_ == AfterReplacing::keepsPlace) edit_->verticalScrollBar()->setValue(place);
}

void QtTextPane::append(const AttributedText& text) {
    if (edit_) edit_->appendText(text);
}

AttributedText QtTextPane::attributedText() const {
    return edit_ ? edit_->attributedText() : AttributedText();
}

} // namespace lexiform::qt
