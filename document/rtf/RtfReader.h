#pragma once

#include "base/AttributedText.h"
#include "base/Outcome.h"
#include "document/format/ReadFault.h"

#include <cstddef>
#include <string_view>

namespace lexiform::document {

/// Groups nested deeper than this are no honest file.
inline constexpr std::size_t deepestRtfGroup = 4096;

/// Whether `bytes` begin as an RTF file does.
[[nodiscard]] bool isRtf(std::string_view bytes);

/// The characters of an RTF file with their colours (Rich Text Format 1.9).
///
/// Paragraphs and lines end in a line feed, pages in a form feed; the cells of a table have a tab between
/// them and its rows a line feed behind them. Of a field there is its result. Notes stand behind the text,
/// each a paragraph. Hidden and deleted text, the marks of lists, headers and footers, pictures
/// and properties are left out.
/// A colour that is the light value of one of ours is that one; every other is the text colour.
///
/// A file that is cut short gives what is there. Faults: bytes that do not begin as RTF, and groups nested
/// too deep. Linear in the length; takes memory in proportion to it.
[[nodiscard]] Outcome<AttributedText, ReadFault> readRtf(std::string_view bytes);

} // namespace lexiform::document
