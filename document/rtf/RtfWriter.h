#pragma once

#include "base/AttributedText.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lexiform::document {

/// A stretch of a text, counted in code units of its UTF-16.
struct Utf16Range {
    std::size_t start = 0;
    std::size_t length = 0;
};

/// The length of a text in code units of UTF-16; bytes that are not UTF-8 count as U+FFFD.
[[nodiscard]] std::size_t utf16Length(std::string_view text);

/// An RTF file in pieces: the head, stretches of text in one colour, which are UTF-8, and the tail. What
/// comes out is what `writeRtf` writes for the whole, but that stretches of one colour are not joined.
[[nodiscard]] std::string rtfHead();
void appendRtf(std::string_view text, Colour colour, std::string& rtf);
inline constexpr std::string_view rtfTail = "}";

/// A part of a coloured text as an RTF file, in ASCII, with the light values of its colours; the text
/// colour is left to the program that shows it. Nothing for a range that reaches past the end. A
/// character of which the range has only half is written whole.
///
/// `readRtf` gives the same characters and colours back, line ends of every kind included: RTF has one
/// word for them all, so that others than the line feed carry a mark that other programs ignore. Bytes
/// that are not UTF-8 become U+FFFD. Linear in the length.
[[nodiscard]] std::optional<std::string> writeRtf(const AttributedText& text, Utf16Range range);

} // namespace lexiform::document
