#pragma once

#include "platform/qt/documents/readFile.h"

#include <chrono>

namespace lexiform::qt {

using FileReader = std::function<Outcome<std::string, OpenFault>(const QString& path, const ReadObserver&)>;

/// Reads a file on a thread of its own and waits for it. When that takes longer than `patience`, a window
/// shows how far it is and lets the person cancel, after which nobody waits for the thread any more.
Outcome<std::string, OpenFault>
readInBackground(const QString& path, const FileReader& read = readFile,
                 std::chrono::milliseconds patience = std::chrono::seconds(1));

} // namespace lexiform::qt
