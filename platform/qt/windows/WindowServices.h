#pragma once

#include "analysis/ViewController.h"
#include "platform/qt/theme/Theme.h"
#include "platform/qt/windows/ApplicationActions.h"
#include "platform/qt/windows/StateStore.h"
#include "platform/qt/windows/WindowList.h"

namespace lexiform::qt {

/// What all windows share. Each must outlive the windows.
struct WindowServices {
    Theme& theme;
    StateStore& store;
    WindowList& windows;
    AnalysisServices analysis;
    /// Null for windows without the application's own commands.
    const ApplicationActions* application = nullptr;
};

} // namespace lexiform::qt
