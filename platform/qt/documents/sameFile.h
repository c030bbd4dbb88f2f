#pragma once

#include <QString>

namespace lexiform::qt {

/// Whether two paths lead to one file, through links of either kind among others. One that is not on the
/// disk is the same as itself.
[[nodiscard]] bool isSameFile(const QString& one, const QString& other);

} // namespace lexiform::qt
