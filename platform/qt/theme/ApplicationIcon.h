#pragma once

#include <QIcon>

namespace lexiform::qt {

/// The program's own icon: lines of coloured words on a dark sheet. The same drawing for desktops is
/// resources/icons/lexiform.svg.
[[nodiscard]] QIcon applicationIcon();

} // namespace lexiform::qt
