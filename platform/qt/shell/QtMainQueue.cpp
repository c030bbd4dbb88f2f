#include "platform/qt/shell/QtMainQueue.h"

#include <utility>

namespace lexiform::qt {

void QtMainQueue::async(std::function<void()> work) {
    QMetaObject::invokeMethod(
        context_.get(), [work = std::move(work)] { work(); }, Qt::QueuedConnection);
}

} // namespace lexiform::qt
