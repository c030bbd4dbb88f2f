#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lexiform::document {

/// The character set that a byte order mark at the start of `bytes` names, and the mark's length.
struct ByteOrderMark {
    std::string_view charset;
    std::size_t length = 0;
};
[[nodiscard]] std::optional<ByteOrderMark> byteOrderMarkOf(std::string_view bytes);

/// The characters of a plain text in an encoding that is not told, as UTF-8 and without a byte order
/// mark: by its mark, as UTF-16 or UTF-32, as UTF-8, and at last by the frequencies of its bytes. Nothing
/// for bytes that are no text. Linear in the length.
[[nodiscard]] std::optional<std::string> decodeText(std::string_view bytes);

} // namespace lexiform::document
