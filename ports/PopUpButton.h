#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace lexiform {

/// A button that drops down a list of titles, one of which is selected.
class PopUpButton {
public:
    virtual ~PopUpButton() = default;

    virtual void removeAllItems() = 0;
    /// Adds one item per title, in order, after those that are there.
    virtual void addItems(std::span<const std::string_view> titles) = 0;
    /// Selects an item without running the button's action; positions count from 0.
    virtual void selectItem(std::size_t index) = 0;
    /// The position of the selected item; -1 when none is.
    [[nodiscard]] virtual int indexOfSelectedItem() const = 0;
    virtual void setEnabled(bool enabled) = 0;
};

} // namespace lexiform
