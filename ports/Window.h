#pragma once

#include <memory>
#include <string>

namespace lexiform {

/// Whoever a window tells of its events. It has no operations: no window of the program reports any.
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;
};

/// A window on the desktop.
class Window {
public:
    virtual ~Window() = default;

    /// The window keeps no delegate alive.
    virtual void setDelegate(std::weak_ptr<WindowDelegate> delegate) = 0;
    /// The title as it is shown; empty for a window without one.
    [[nodiscard]] virtual std::string title() const = 0;
    virtual void setTitle(const std::string& title) = 0;
};

} // namespace lexiform
