#pragma once

#include <cstdint>

namespace lexiform::document {

/// Why bytes give no text.
enum class ReadFault : std::uint8_t {
    unknownFormat, ///< none of the formats that are known
    damaged,       ///< of a known format, but without the parts that make a text
    tooComplex,    ///< nested or crowded beyond what any honest file is
    tooLarge       ///< unpacks to more than a program can be asked to hold
};

} // namespace lexiform::document
