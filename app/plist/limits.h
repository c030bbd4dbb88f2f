#pragma once

#include <algorithm>
#include <cstddef>

namespace lexiform::plist {

/// The most bytes of a list, in any encoding.
inline constexpr std::size_t mostBytes = std::size_t{16} << 20U;
/// The most arrays and dictionaries inside each other.
inline constexpr std::size_t deepestContainer = 128;
/// The most values of a list, keys included. One that is shared counts as often as it is referred to.
inline constexpr std::size_t mostObjects = 1'000'000;
/// The most bytes that the strings and data of a list may unpack to.
inline constexpr std::size_t mostContentBytes = std::size_t{64} << 20U;

/// The most values, and the most bytes of strings and data, that each byte of a list may stand for where
/// values are shared, so that a small list costs little.
inline constexpr std::size_t mostPerByte = 256;

/// What a list that is being read may still hold.
class Budget {
public:
    Budget() = default;
    /// For a list of so many bytes whose values can be shared.
    explicit Budget(std::size_t listBytes)
        : objects_(std::min(mostObjects, mostPerByte * listBytes)),
          bytes_(std::min(mostContentBytes, mostPerByte * listBytes)) {}

    /// Takes so many values or bytes; false when there are not so many left.
    [[nodiscard]] bool takeObjects(std::size_t count) { return take(count, objects_); }
    [[nodiscard]] bool takeBytes(std::size_t count) { return take(count, bytes_); }

private:
    static bool take(std::size_t count, std::size_t& left) {
        if (count > left) return false;
        left -= count;
        return true;
    }

    std::size_t objects_ = mostObjects;
    std::size_t bytes_ = mostContentBytes;
};

} // namespace lexiform::plist
