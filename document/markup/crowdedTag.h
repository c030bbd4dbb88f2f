#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lexiform::document {

enum class Markup : std::uint8_t { html, xml };

/// A tag with more attributes than this is no honest one.
inline constexpr std::size_t mostAttributes = 1024;

/// Whether a tag in a page or an XML file has more than `mostAttributes` attributes. The parser compares
/// every attribute with all before it, so that such a tag would hold up the program. Linear in the length.
[[nodiscard]] bool hasCrowdedTag(std::string_view text, Markup markup);

} // namespace lexiform::document
