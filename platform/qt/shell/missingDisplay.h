#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace lexiform::qt {

/// What to tell a person who starts the program where there is nothing to show its windows on.
[[nodiscard]] QString noDisplayMessage();

/// That message; nothing where the environment or the program's arguments name a display. To be asked before
/// the application is made, which Qt explains at length where there is no display.
[[nodiscard]] std::optional<QString> missingDisplay(const QStringList& arguments);

} // namespace lexiform::qt
