#pragma once

#include "ports/Window.h"

namespace lexiform {

/// The area of a window that a view controller fills.
class View {
public:
    virtual ~View() = default;

    /// The window that the view is in; null while it is in none. Owned by the desktop.
    [[nodiscard]] virtual Window* window() = 0;
};

} // namespace lexiform
