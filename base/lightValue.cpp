#include "base/lightValue.h"

#include <array>
#include <cstddef>

namespace lexiform {

namespace {

// In the order of Colour. The familiar system values all miss a contrast of 4.5:1 on white.
constexpr std::array<Rgb, 10> values = {{
    {0x6E, 0x6E, 0x73},
    {0xD7, 0x00, 0x15},
    {0x00, 0x55, 0xD4},
    {0x1A, 0x7F, 0x37},
    {0x8A, 0x3F, 0xB0},
    {0x8A, 0x6A, 0x00},
    {0x7A, 0x52, 0x30},
    {0xD3, 0x0F, 0x6E},
    {0xB8, 0x4A, 0x00},
    {0x1B, 0x1E, 0x23},
}};

} // namespace

Rgb lightValue(Colour colour) {
    return values.at(static_cast<std::size_t>(colour));
}

} // namespace lexiform
