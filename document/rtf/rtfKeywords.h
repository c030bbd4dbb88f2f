#pragma once

#include <cstdint>
#include <string_view>

namespace lexiform::document {

/// What a control word of RTF does to a text without its layout.
enum class RtfAction : std::uint8_t {
    none,      ///< unknown, or of no matter: its group is text, unless it is marked as one to be ignored
    character, ///< stands for the code point `value`
    paragraphEnd,
    lineEnd,
    cellEnd,
    rowEnd,
    unicode,
    fallbackLength, ///< how many characters stand behind each `unicode` for old readers
    binary,
    font,
    plain,
    colour,
    hidden,
    deleted,
    // Of the whole file.
    codePage,   ///< the number is the code page
    codePageIs, ///< `value` is the code page
    defaultFont,
    writtenOnMac, ///< there, the fonts of Western charset are in the file's code page
    // Of the tables of fonts and colours.
    fontCharset,
    fontCodePage,
    red,
    green,
    blue,
    // Destinations: what the group that they start is.
    skipped,
    choice, ///< only what is `chosen` inside it is text
    chosen,
    transparent, ///< text, though it is marked as one to be ignored
    note,
    fontTable,
    colourTable,
    ownLineEnd ///< the character, of many, that the next line end stands for; written by Lexiform
};

struct RtfKeyword {
    std::string_view word;
    RtfAction action = RtfAction::none;
    std::uint16_t value = 0;
};

/// What is known of a control word, which is case-sensitive.
[[nodiscard]] RtfKeyword rtfKeyword(std::string_view word);

/// The control word with which the writer marks line ends that RTF has no word for.
inline constexpr std::string_view ownLineEndWord = "lxeol";

} // namespace lexiform::document
