#pragma once

#include <QIcon>

#include <cstdint>

namespace lexiform::qt {

/// What a line icon shows.
enum class Glyph : std::uint8_t { parse, multiParse, list, save };

/// The room that an icon takes: a square glyph in the leading part, then the gap to its label.
inline constexpr QSize lineIconSize{24, 20};

/// An icon of thin lines in the colour of the palette's button text, sharp at every scale and right in
/// both appearances, since it is drawn anew each time.
[[nodiscard]] QIcon lineIcon(Glyph glyph);

} // namespace lexiform::qt
