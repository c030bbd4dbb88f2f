#pragma once

#include "base/WebAddress.h"

namespace lexiform {

/// The desktop with its other programs.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Hands the address to the user's default program for it; false when that failed.
    virtual bool open(const WebAddress& address) = 0;
};

} // namespace lexiform
