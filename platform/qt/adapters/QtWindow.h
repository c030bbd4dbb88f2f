#pragma once

#include "ports/Window.h"

#include <memory>
#include <utility>

namespace lexiform::qt {

/// A window as the core knows it: it keeps a delegate and tells it nothing.
class QtWindow : public Window {
public:
    void setDelegate(std::weak_ptr<WindowDelegate> delegate) override { delegate_ = std::move(delegate); }
    [[nodiscard]] std::shared_ptr<WindowDelegate> delegate() const { return delegate_.lock(); }

private:
    std::weak_ptr<WindowDelegate> delegate_;
};

} // namespace lexiform::qt
