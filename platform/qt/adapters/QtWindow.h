#pragma once

#include "app/LXFWindow.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace lexiform::qt {

/// A window as the core knows it: it keeps a delegate and tells it nothing.
class QtWindow : public LXFWindow {
public:
    /// `title` gives the title that the window shows, whenever it is asked for; `retitle` changes it, and
    /// where it is absent the title stays. The widget lays the window out: nothing is said of its place.
    explicit QtWindow(std::function<QString()> title, std::function<void(const QString&)> retitle = {})
        : LXFWindow({},
                    styleOf({StyleMask::titled, StyleMask::closable, StyleMask::miniaturisable,
                             StyleMask::resizable}),
                    BackingStore::buffered, true),
          title_(std::move(title)), retitle_(std::move(retitle)) {}

    [[nodiscard]] std::string title() const override { return title_().toStdString(); }
    void setTitle(const std::string& title) override {
        if (retitle_) retitle_(QString::fromStdString(title));
    }
    void setDelegate(std::weak_ptr<WindowDelegate> delegate) override { delegate_ = std::move(delegate); }
    [[nodiscard]] std::shared_ptr<WindowDelegate> delegate() const { return delegate_.lock(); }

private:
    std::function<QString()> title_;
    std::function<void(const QString&)> retitle_;
    std::weak_ptr<WindowDelegate> delegate_;
};

} // namespace lexiform::qt
