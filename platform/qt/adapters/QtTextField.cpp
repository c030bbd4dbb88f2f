#include "platform/qt/adapters/QtTextField.h"

namespace lexiform::qt {

void QtTextField::setStringValue(const std::string& value) {
    if (key_) key_->replaceText(AttributedText(value, Colour::text));
}

} // namespace lexiform::qt
