#include "platform/qt/adapters/QtView.h"

#include <utility>

namespace lexiform::qt {

QtView::QtView(std::weak_ptr<Window> window) : window_(std::move(window)) {}

// The window's owner outlives the call: everything runs on the main thread.
Window* QtView::window() {
    return window_.lock().get();
}

} // namespace lexiform::qt
