#pragma once

#include "ports/Menu.h"

namespace lexiform {

/// The running program on its desktop.
class Application {
public:
    virtual ~Application() = default;

    /// Null for a program without one. Owned by the desktop.
    [[nodiscard]] virtual Menu* helpMenu() = 0;
};

} // namespace lexiform
