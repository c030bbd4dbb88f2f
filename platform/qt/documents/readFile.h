#pragma once

#include "base/Outcome.h"
#include "platform/qt/documents/OpenFailure.h"

#include <QString>

#include <string>

namespace lexiform::qt {

/// The bytes of an ordinary file, which may be none.
Outcome<std::string, OpenFault> readFile(const QString& path);

} // namespace lexiform::qt
