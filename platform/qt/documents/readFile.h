#pragma once

#include "base/Outcome.h"
#include "platform/qt/documents/OpenFailure.h"

#include <QString>

#include <functional>
#include <string>

namespace lexiform::qt {

/// Called now and then with the bytes read so far and those there are; reading stops on false.
using ReadObserver = std::function<bool(qint64 read, qint64 total)>;

/// The bytes of an ordinary file, which may be none. `cancelled` when the observer stopped it.
Outcome<std::string, OpenFault> readFile(const QString& path, const ReadObserver& goesOn = {});

} // namespace lexiform::qt
