#pragma once

#include "base/Colour.h"

#include <QColor>
#include <QPalette>

#include <cstdint>

namespace lexiform::qt {

/// Whether the desktop shows dark text on light surfaces or the reverse.
enum class Appearance { light, dark };

/// Dark when the palette's window text is lighter than its window.
[[nodiscard]] Appearance appearanceOf(const QPalette& palette);

/// The values that the class colours have on the screen: the standard ones, or others that can be told
/// apart without red, without green and without blue cones in the eye as well.
enum class ClassPalette : std::uint8_t { standard, colourBlind };

/// The value of a colour on a pane of this appearance. Every one has a contrast of at least 4.6:1
/// with its pane.
[[nodiscard]] QColor valueOf(Colour colour, Appearance appearance,
                             ClassPalette palette = ClassPalette::standard);

/// The neutral surfaces of the windows. Hue belongs to words: the only other tint is `focus`.
struct Surfaces {
    QColor window;
    QColor pane;
    QColor paneBorder; ///< equal to `window` where panes have no outline
    QColor controlBorder;
    QColor controlFill;
    QColor text;
    QColor secondaryText;
    QColor disabledText;
    QColor disabledBorder;
    QColor hover;
    QColor pressed;
    QColor selection;
    QColor focus;
    QColor handle; ///< splitter grips and scroll bars
};

[[nodiscard]] const Surfaces& surfacesOf(Appearance appearance);

} // namespace lexiform::qt
