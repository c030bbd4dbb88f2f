#pragma once

#include <functional>

namespace lexiform {

/// What is to be done on the main thread.
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Returns at once; `work` runs later, in the order of asking. May be called from any thread.
    virtual void async(std::function<void()> work) = 0;
};

} // namespace lexiform
