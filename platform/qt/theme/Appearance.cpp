#include "platform/qt/theme/Appearance.h"

#include "base/lightValue.h"

#include <array>
#include <cstddef>

namespace lexiform::qt {

namespace {

// In the order of Colour.
constexpr std::array<QRgb, 10> darkValues = {0xFF9A9AA0, 0xFFFF6961, 0xFF5AA9FF, 0xFF3DD65C, 0xFFD18BFA,
                                             0xFFFFD60A, 0xFFC9A77C, 0xFFFF85B5, 0xFFFFA033, 0xFFE7E9EC};

// The smallest distance of two of them under any of the three simulated kinds of colour blindness is as
// large as could be found with about the hues of the standard colours: ClassPaletteTest measures it.
constexpr std::array<QRgb, 10> colourBlindLightValues = {0xFF52483E, 0xFFE01367, 0xFF074FFF, 0xFF00826C,
                                                         0xFFB61896, 0xFF976C00, 0xFF2D1900, 0xFF62005B,
                                                         0xFF892800, 0xFF1B1E23};
constexpr std::array<QRgb, 10> colourBlindDarkValues = {0xFFA7ABA7, 0xFFE94F0A, 0xFF5789FF, 0xFFBEFFC7,
                                                        0xFFE8B8FF, 0xFFFFEF07, 0xFF978969, 0xFFBC67A3,
                                                        0xFFF0AB6D, 0xFFE7E9EC};

QColor colourBlindValue(Colour colour, Appearance appearance) {
    const auto& values = appearance == Appearance::dark ? colourBlindDarkValues : colourBlindLightValues;
    return QColor::fromRgb(values.at(static_cast<std::size_t>(colour)));
}

} // namespace

Appearance appearanceOf(const QPalette& palette) {
    const int text = palette.color(QPalette::WindowText).lightness();
    const int window = palette.color(QPalette::Window).lightness();
    return text > window ? Appearance::dark : Appearance::light;
}

QColor valueOf(Colour colour, Appearance appearance, ClassPalette palette) {
    if (palette == ClassPalette::colourBlind) return colourBlindValue(colour, appearance);
    if (appearance == Appearance::dark) return QColor::fromRgb(darkValues[static_cast<std::size_t>(colour)]);
    const Rgb light = lightValue(colour);
    return {light.red, light.green, light.blue};
}

const Surfaces& surfacesOf(Appearance appearance) {
    static const Surfaces light{
        .window = 0xF2F3F5,
        .pane = 0xFFFFFF,
        .paneBorder = 0xD8DCE2,
        .controlBorder = 0x868D98,
        .controlFill = 0xFFFFFF,
        .text = 0x1B1E23,
        .secondaryText = 0x565D68,
        .disabledText = 0x8B929D,
        .disabledBorder = 0xD8DCE2,
        .hover = 0xE5E8EC,
        .pressed = 0xD8DCE2,
        .selection = 0xCFDFEE,
        .focus = 0x2B5C8A,
        .handle = 0xC2C8D0,
    };
    static const Surfaces dark{
        .window = 0x23272D,
        .pane = 0x15181C,
        .paneBorder = 0x23272D,
        .controlBorder = 0x6F7783,
        .controlFill = 0x2E333B,
        .text = 0xE7E9EC,
        .secondaryText = 0xA6AEB9,
        .disabledText = 0x737B87,
        .disabledBorder = 0x3A414B,
        .hover = 0x2E333B,
        .pressed = 0x3A414B,
        .selection = 0x2C4A66,
        .focus = 0x8FBCE6,
        .handle = 0x454D58,
    };
    return appearance == Appearance::dark ? dark : light;
}

} // namespace lexiform::qt
