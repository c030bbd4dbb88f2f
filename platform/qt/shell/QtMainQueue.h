#pragma once

#include "ports/MainQueue.h"

#include <QObject>

#include <memory>

namespace lexiform::qt {

/// The event loop of the thread that made the queue. What has not run when the queue is stopped is let go.
class QtMainQueue : public MainQueue {
public:
    QtMainQueue() : context_(std::make_unique<QObject>()) {}

    void async(std::function<void()> work) override;

    /// Lets go of what waits. Nothing may ask for more afterwards.
    void stop() { context_.reset(); }

private:
    std::unique_ptr<QObject> context_;
};

} // namespace lexiform::qt
