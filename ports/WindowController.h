#pragma once

#include "ports/ApplicationDelegateBase.h"
#include "ports/ViewControllerBase.h"

#include <memory>

namespace lexiform {

/// Anything that a storyboard can make.
class SceneController {
public:
    virtual ~SceneController() = default;
};

/// Holds a window and the controller of its content.
class WindowController : public SceneController {
public:
    /// Null for a window whose content has no controller.
    [[nodiscard]] virtual std::shared_ptr<ViewControllerBase> contentViewController() const = 0;
    /// Brings the window on screen on behalf of `sender`, which may be null.
    virtual void showWindow(const ActionSender* sender) = 0;
};

} // namespace lexiform
