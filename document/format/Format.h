#pragma once

#include <cstdint>

namespace lexiform::document {

/// The formats that the reader of attributed text knows.
enum class Format : std::uint8_t { plainText, rtf, html, odt, docx, epub };

} // namespace lexiform::document
