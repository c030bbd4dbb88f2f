#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lexiform::document {

/// How many bytes are enough to see whether a page begins.
inline constexpr std::size_t startOfPage = 4096;

/// Whether a text in UTF-8 begins as an HTML page does (MIME Sniffing standard, "Identifying a resource with
/// an unknown MIME type"), behind white space, comments and an XML declaration.
[[nodiscard]] bool startsAsPage(std::string_view text);

/// The source of a page as UTF-8, its line ends line feeds and without control characters that HTML does
/// not have. Nothing for bytes that are no text.
[[nodiscard]] std::optional<std::string> pageSource(std::string_view bytes);

/// A text in UTF-8 with the characters U+0080 to U+009F, which are no letters, as browsers show them where
/// they are written by number: as those that Windows has in these places.
[[nodiscard]] std::string withWindowsLetters(std::string_view text);

} // namespace lexiform::document
