#pragma once

#include "ports/View.h"

#include <any>
#include <memory>

namespace lexiform {

/// The base of everything that controls the content of a window. The desktop calls its events on
/// the main thread.
class ViewControllerBase {
public:
    virtual ~ViewControllerBase() = default;

    /// The view has been made and its controls are connected.
    virtual void viewDidLoad() {}
    /// The view's window has come on screen: first shown, or shown again after being hidden or
    /// closed. Restoring, resizing, full screen and a change of theme are no appearance.
    virtual void viewDidAppear() {}

    /// Absent until the window's layout connects it. Owned by the layout.
    std::weak_ptr<View> view;
    /// What the controller stands for, whatever that is to whoever sets it; nothing reacts to it.
    std::any representedObject;
};

} // namespace lexiform
