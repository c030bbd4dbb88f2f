#pragma once

#include "analysis/ViewController.h"
#include "platform/qt/adapters/QtWindow.h"
#include "platform/qt/windows/BusyLine.h"
#include "platform/qt/windows/DocumentPanes.h"
#include "platform/qt/windows/PopUpBox.h"

#include <functional>
#include <memory>

namespace lexiform::qt {

/// Connects every control of a window's layout to the fields of its controller, and keeps those that
/// the controller refers to without owning them.
class ControlOutlets {
public:
    /// `title` gives the window's title.
    ControlOutlets(ViewController& controller, const DocumentPanes& panes, PopUpBox* typesPopUp,
                   BusyLine* busyLine, std::function<QString()> title);

private:
    std::shared_ptr<QtWindow> window_;
    std::shared_ptr<View> view_;
    std::shared_ptr<PopUpButton> typesPopUp_;
    std::shared_ptr<ScrollView> inputScroller_;
    std::shared_ptr<ScrollView> outputScroller_;
    std::shared_ptr<ScrollView> concordanceScroller_;
};

} // namespace lexiform::qt
