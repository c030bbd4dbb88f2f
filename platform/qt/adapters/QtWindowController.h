#pragma once

#include "ports/WindowController.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace lexiform::qt {

/// Owns a window and shares the controller of its content. The window lives, shown or not, for as
/// long as something holds its controller.
class QtWindowController : public WindowController {
public:
    QtWindowController(std::unique_ptr<QWidget> window, std::shared_ptr<ViewControllerBase> content);
    ~QtWindowController() override;
    QtWindowController(const QtWindowController&) = delete;
    QtWindowController& operator=(const QtWindowController&) = delete;

    [[nodiscard]] std::shared_ptr<ViewControllerBase> contentViewController() const override;
    void showWindow(const ActionSender* sender) override;
    /// Null once the window is gone.
    [[nodiscard]] QWidget* window() const { return window_; }

private:
    QPointer<QWidget> window_;
    std::shared_ptr<ViewControllerBase> content_;
};

} // namespace lexiform::qt
