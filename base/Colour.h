#pragma once

#include <cstdint>

namespace lexiform {

/// A colour by its role. Only what paints or writes knows its values, which differ in light and
/// dark; the first nine are the class colours, `text` is the default text colour.
enum class Colour : std::uint8_t { gray, red, blue, green, purple, yellow, brown, pink, orange, text };

} // namespace lexiform
