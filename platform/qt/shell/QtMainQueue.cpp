#include "platform/qt/shell/QtMainQueue.h"

#include "platform/qt/shell/runLater.h"

#include <utility>

namespace lexiform::qt {

void QtMainQueue::async(std::function<void()> work) {
    runLater(*context_, std::move(work));
}

} // namespace lexiform::qt
