#pragma once

#include <QStringView>

#include <cstddef>

namespace lexiform::qt {

/// The bytes that a UTF-16 unit adds to a text's UTF-8. A surrogate counts for half of its pair.
[[nodiscard]] constexpr std::size_t utf8Length(char16_t unit) {
    if (unit < 0x80) return 1;
    if (unit < 0x800 || (unit & 0xF800) == 0xD800) return 2;
    return 3;
}

/// The length in bytes of a well-formed UTF-16 text in UTF-8.
[[nodiscard]] inline std::size_t utf8Length(QStringView text) {
    std::size_t length = 0;
    for (const QChar unit : text)
        length += utf8Length(unit.unicode());
    return length;
}

} // namespace lexiform::qt
