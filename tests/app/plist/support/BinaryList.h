#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lexiform::plist {

/// The bytes that numbers from 0 to 255 stand for.
inline std::string bytesOf(const std::vector<int>& numbers) {
    std::string bytes;
    for (const int number : numbers)
        bytes += static_cast<char>(number);
    return bytes;
}

inline std::string bigEndianOf(std::uint64_t number, std::size_t width) {
    std::string bytes(width, '\0');
    for (std::size_t i = width; i > 0; --i, number >>= 8U)
        bytes[i - 1] = static_cast<char>(number & 0xFFU);
    return bytes;
}

/// What a binary list says of itself.
struct BinaryShape {
    std::size_t offsetWidth = 4;
    std::size_t referenceWidth = 1;
    std::uint64_t root = 0;
};

/// The binary list of these objects, the first one its root.
inline std::string binaryListOf(const std::vector<std::string>& objects, BinaryShape shape = {}) {
    std::string list = "bplist00";
    std::string offsets;
    for (const std::string& object : objects) {
        offsets += bigEndianOf(list.size(), shape.offsetWidth);
        list += object;
    }
    const std::uint64_t table = list.size();
    return list + offsets + bigEndianOf(0, 6) + bigEndianOf(shape.offsetWidth, 1) +
           bigEndianOf(shape.referenceWidth, 1) + bigEndianOf(objects.size(), 8) +
           bigEndianOf(shape.root, 8) + bigEndianOf(table, 8);
}

} // namespace lexiform::plist
