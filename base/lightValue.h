#pragma once

#include "base/Colour.h"

#include <cstdint>

namespace lexiform {

/// A colour by its parts, each of 0 to 255.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Rgb&) const = default;
};

/// The value of a colour on a light surface: on a pane in the light, and in files, which end up on paper
/// white. Every one has a contrast of at least 4.6:1 with white.
[[nodiscard]] Rgb lightValue(Colour colour);

} // namespace lexiform
