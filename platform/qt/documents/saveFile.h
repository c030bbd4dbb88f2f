#pragma once

#include "base/Outcome.h"

#include <QString>

#include <functional>
#include <string_view>

namespace lexiform::qt {

/// Why a file was not saved, as a sentence for a person.
struct SaveFault {
    QString reason;
};

using FileSaver = std::function<Outcome<Done, SaveFault>(const QString& path, std::string_view bytes)>;

/// Puts `bytes` in the place of the file at `path`, or of the one that a link there points to, with its
/// permissions. They are written beside it first and reach the disk before the old file goes: after a
/// failure that is as it was, and nothing else is left. A file with several names is written in place.
Outcome<Done, SaveFault> saveFile(const QString& path, std::string_view bytes);

} // namespace lexiform::qt
