#pragma once

#include "ports/Window.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace lexiform::qt {

/// A window as the core knows it: it keeps a delegate and tells it nothing.
class QtWindow : public Window {
public:
    /// `title` gives the title that the window shows, whenever it is asked for.
    explicit QtWindow(std::function<QString()> title) : title_(std::move(title)) {}

    [[nodiscard]] std::string title() const override { return title_().toStdString(); }
    void setDelegate(std::weak_ptr<WindowDelegate> delegate) override { delegate_ = std::move(delegate); }
    [[nodiscard]] std::shared_ptr<WindowDelegate> delegate() const { return delegate_.lock(); }

private:
    std::function<QString()> title_;
    std::weak_ptr<WindowDelegate> delegate_;
};

} // namespace lexiform::qt
