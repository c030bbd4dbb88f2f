#pragma once

#include "ports/Alert.h"

#include <QPalette>
#include <QPixmap>

namespace lexiform::qt {

/// The program's icon, with a warning sign before it for a critical alert. The sign has the colours of text:
/// hue belongs to words.
[[nodiscard]] QPixmap alertIcon(Alert::Style style, const QPalette& palette, qreal pixelRatio);

} // namespace lexiform::qt
