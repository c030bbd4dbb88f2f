#pragma once

#include "platform/qt/theme/Appearance.h"

#include <QPalette>

namespace lexiform::qt {

/// The palette of the whole program: every role and group is set, so that nothing of the desktop's
/// own palette shows through in the other appearance.
[[nodiscard]] QPalette paletteOf(Appearance appearance);

/// The fill of a framed control under the pointer: one step away from its fill at rest.
[[nodiscard]] QColor pointedFill(const Surfaces& surfaces);

} // namespace lexiform::qt
