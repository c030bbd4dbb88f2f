#pragma once

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

/// What a list that is being read may still hold.
class Budget {
public:
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
