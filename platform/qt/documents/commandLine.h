#pragma once

#include <QStringList>

namespace lexiform::qt {

/// Whether the arguments ask for the help or the version, which `filesToOpen` then prints.
[[nodiscard]] bool asksForText(const QStringList& arguments);

/// The files among the program's arguments, the first of which is its own name. Prints the help or the
/// version, or the fault in the arguments, and ends the program where they ask for that.
[[nodiscard]] QStringList filesToOpen(const QStringList& arguments);

} // namespace lexiform::qt
