#include "platform/qt/adapters/QtWindowController.h"

#include <utility>

namespace lexiform::qt {

QtWindowController::QtWindowController(std::unique_ptr<QWidget> window,
                                       std::shared_ptr<ViewControllerBase> content)
    : window_(window.release()), content_(std::move(content)) {}

QtWindowController::~QtWindowController() {
    delete window_.data();
}

std::shared_ptr<ViewControllerBase> QtWindowController::contentViewController() const {
    return content_;
}

void QtWindowController::showWindow(const ActionSender* /*sender*/) {
    if (!window_) return;
    window_->show();
    window_->raise();
    window_->activateWindow();
}

} // namespace lexiform::qt
