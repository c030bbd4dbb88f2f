#include "app/plist/BinaryTrailer.h"

namespace lexiform::plist {

namespace {

constexpr std::size_t trailerSize = 32;
constexpr std::size_t widest = 8;

bool isWidth(std::size_t width) {
    return width >= 1 && width <= widest;
}

} // namespace

std::uint64_t bigEndian(std::string_view bytes) {
    std::uint64_t number = 0;
    for (const char byte : bytes)
        number = (number << 8U) | static_cast<unsigned char>(byte);
    return number;
}

std::optional<BinaryTrailer> readBinaryTrailer(std::string_view bytes) {
    if (bytes.size() < binaryMark.size() + trailerSize) return std::nullopt;
    const std::size_t end = bytes.size() - trailerSize;
    const std::string_view trailer = bytes.substr(end);
    // Six bytes have no meaning here.
    BinaryTrailer result;
    result.offsetWidth = bigEndian(trailer.substr(6, 1));
    result.referenceWidth = bigEndian(trailer.substr(7, 1));
    result.count = bigEndian(trailer.substr(8, 8));
    result.root = bigEndian(trailer.substr(16, 8));
    const std::uint64_t table = bigEndian(trailer.substr(24, 8));
    if (!isWidth(result.offsetWidth) || !isWidth(result.referenceWidth)) return std::nullopt;
    if (table <= binaryMark.size() || table >= end || result.root >= result.count) return std::nullopt;
    result.objects = bytes.substr(0, table);
    result.offsets = bytes.substr(table, end - table);
    // Divided, since a product could overflow.
    const std::size_t size = result.offsets.size();
    if (size % result.offsetWidth != 0 || size / result.offsetWidth != result.count) return std::nullopt;
    return result;
}

} // namespace lexiform::plist
