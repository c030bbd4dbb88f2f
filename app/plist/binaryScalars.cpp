#include "app/plist/binaryScalars.h"

#include "app/plist/BinaryTrailer.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace lexiform::plist {

namespace {

constexpr std::uint64_t mostPositive = std::numeric_limits<std::int64_t>::max();

double realOf8(std::string_view bytes) {
    return std::bit_cast<double>(bigEndian(bytes));
}

} // namespace

std::optional<PropertyList> binaryInteger(std::string_view bytes) {
    if (bytes.size() != 16) return PropertyList{static_cast<std::int64_t>(bigEndian(bytes))};
    const std::uint64_t high = bigEndian(bytes.substr(0, 8));
    const std::uint64_t low = bigEndian(bytes.substr(8));
    const std::uint64_t extension = low > mostPositive ? std::numeric_limits<std::uint64_t>::max() : 0;
    if (high != extension) return std::nullopt;
    return PropertyList{static_cast<std::int64_t>(low)};
}

std::optional<PropertyList> binaryIdentifier(std::string_view bytes) {
    while (bytes.size() > 8 && bytes.front() == '\0')
        bytes.remove_prefix(1);
    if (bytes.size() > 8 || bigEndian(bytes) > mostPositive) return std::nullopt;
    return PropertyList{static_cast<std::int64_t>(bigEndian(bytes))};
}

std::optional<PropertyList> binaryReal(std::string_view bytes) {
    if (bytes.size() == 8) return PropertyList{realOf8(bytes)};
    if (bytes.size() != 4) return std::nullopt;
    return PropertyList{double{std::bit_cast<float>(static_cast<std::uint32_t>(bigEndian(bytes)))}};
}

std::optional<PropertyList> binaryDate(std::string_view bytes) {
    const double seconds = realOf8(bytes);
    return std::isfinite(seconds) ? std::optional(PropertyList{PropertyDate{seconds}}) : std::nullopt;
}

} // namespace lexiform::plist
