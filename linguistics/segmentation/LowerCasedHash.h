#pragma once

#include <cstdint>
#include <string_view>

namespace lexiform::linguistics {

/// The hash of `word` in lower case, letter by letter and without regard to language; any bytes. It is
/// written into models.
[[nodiscard]] std::uint32_t lowerCasedHash(std::string_view word);

/// The hash of two words, by their `lowerCasedHash`, in this order.
[[nodiscard]] constexpr std::uint32_t pairHash(std::uint32_t first, std::uint32_t second) {
    return static_cast<std::uint32_t>((std::uint64_t{first} << 32 | second) * 0x9E3779B97F4A7C15U >> 32);
}

} // namespace lexiform::linguistics
