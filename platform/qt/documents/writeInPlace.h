#pragma once

#include "platform/qt/documents/saveFile.h"

namespace lexiform::qt {

/// Whether the file at `path` has further names, hard links, which only writing in place keeps together.
[[nodiscard]] bool hasOtherNames(const QString& path);

/// Writes `bytes` over what the file at `path` holds. Room for them is made first: when there is none, the
/// file stays as it was. Should the machine stop while they are written, it holds a part of each.
Outcome<Done, SaveFault> writeInPlace(const QString& path, std::string_view bytes);

} // namespace lexiform::qt
