#pragma once

#include "platform/qt/theme/Appearance.h"

#include <QString>

namespace lexiform::qt {

/// The style sheet of the whole program: what the palette cannot say of bars, menus, tool buttons and
/// scroll bars. A state changes colours only, never a size.
[[nodiscard]] QString styleSheetOf(Appearance appearance);

} // namespace lexiform::qt
