#pragma once

#include <QFont>

namespace lexiform::qt {

/// The font of all text panes: a sans, since thin serifs lose their hue, of 12 points, or as large as the
/// desktop's own where that is larger.
[[nodiscard]] QFont paneFont();

/// The distance of two lines in a font: 1.45 em, but no less than the font itself asks for.
[[nodiscard]] qreal linePitch(const QFont& font);

} // namespace lexiform::qt
