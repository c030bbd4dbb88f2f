#pragma once

#include "ports/PopUpButton.h"

#include <QComboBox>
#include <QPointer>

namespace lexiform::qt {

/// A combo box as the core's pop-up. It does nothing once the box is gone.
class QtPopUpButton : public PopUpButton {
public:
    explicit QtPopUpButton(QComboBox* box) : box_(box) {}

    void removeAllItems() override;
    void addItems(std::span<const std::string_view> titles) override;
    void selectItem(std::size_t index) override;
    [[nodiscard]] int indexOfSelectedItem() const override;
    void setEnabled(bool enabled) override;

private:
    QPointer<QComboBox> box_;
};

} // namespace lexiform::qt
