#pragma once

#include <cstddef>

namespace lexiform {

/// The limit of a queue for background operations. All analysis runs on the main thread, so that
/// nothing is ever queued and the queue needs no threads of its own.
class OperationQueue {
public:
    explicit OperationQueue(std::size_t maxConcurrentOperationCount)
        : maxConcurrentOperationCount_(maxConcurrentOperationCount) {}

    [[nodiscard]] std::size_t maxConcurrentOperationCount() const { return maxConcurrentOperationCount_; }

private:
    std::size_t maxConcurrentOperationCount_;
};

} // namespace lexiform
