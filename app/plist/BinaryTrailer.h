#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lexiform::plist {

/// The number that up to eight bytes are, the highest first.
[[nodiscard]] std::uint64_t bigEndian(std::string_view bytes);

/// What the last bytes of a binary list say of the others.
struct BinaryTrailer {
    std::string_view objects; ///< from the start of the list, so that an offset is a place in it
    std::string_view offsets; ///< of all objects, `offsetWidth` bytes each
    std::size_t offsetWidth = 0;
    std::size_t referenceWidth = 0; ///< the bytes that a container has for each of its objects
    std::uint64_t count = 0;        ///< of objects, at least 1
    std::uint64_t root = 0;         ///< the object that is the list, below `count`
};

/// The trailer of a list that starts with `binaryMark`; nothing unless objects, offsets and trailer fill it
/// exactly.
[[nodiscard]] std::optional<BinaryTrailer> readBinaryTrailer(std::string_view bytes);

/// What every binary list starts with.
inline constexpr std::string_view binaryMark = "bplist00";

} // namespace lexiform::plist
