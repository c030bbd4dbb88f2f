#pragma once

#include "ports/WindowBase.h"

namespace lexiform {

/// The class of the application's windows.
class LXFWindow : public WindowBase {
public:
    LXFWindow(const ContentRect& contentRect, StyleMask style, BackingStore backing, bool defer)
        : WindowBase(contentRect, style, backing, defer) {}
};

} // namespace lexiform
