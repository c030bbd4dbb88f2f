#include "platform/qt/adapters/QtPopUpButton.h"

namespace lexiform::qt {

void QtPopUpButton::removeAllItems() {
    if (box_) box_->clear();
}

void QtPopUpButton::addItems(std::span<const std::string_view> titles) {
    if (!box_) return;
    for (const std::string_view title : titles)
        box_->addItem(QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())));
}

// The action of the button is the box's `activated`, which only a person's choice emits.
void QtPopUpButton::selectItem(std::size_t index) {
    if (box_) box_->setCurrentIndex(static_cast<int>(index));
}

int QtPopUpButton::indexOfSelectedItem() const {
    return box_ ? box_->currentIndex() : -1;
}

void QtPopUpButton::setEnabled(bool enabled) {
    if (box_) box_->setEnabled(enabled);
}

} // namespace lexiform::qt
