#pragma once

#include <QObject>

#include <functional>

namespace lexiform::qt {

/// Runs `work` on the event loop of the thread that `context` lives on, behind what waits there, and returns
/// at once. It is let go when `context` goes before.
void runLater(const QObject& context, std::function<void()> work);

} // namespace lexiform::qt
