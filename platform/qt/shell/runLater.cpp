#include "platform/qt/shell/runLater.h"

#include <utility>

namespace lexiform::qt {

// The end of an object is a signal that can be queued. The checker of leaks takes the direct way, a call of a
// function through the meta-object, for a leak within Qt.
void runLater(const QObject& context, std::function<void()> work) {
    const QObject errand;
    QObject::connect(
        &errand, &QObject::destroyed, &context, [work = std::move(work)] { work(); }, Qt::QueuedConnection);
}

} // namespace lexiform::qt
