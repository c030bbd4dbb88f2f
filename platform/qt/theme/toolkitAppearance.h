#pragma once

#include "platform/qt/theme/Appearance.h"

#include <optional>

namespace lexiform::qt {

/// The appearance of the theme that GTK shows at present; nothing where the desktop has not brought GTK into
/// this program.
[[nodiscard]] std::optional<Appearance> toolkitAppearance();

} // namespace lexiform::qt
