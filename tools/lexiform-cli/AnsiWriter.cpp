#include "tools/lexiform-cli/AnsiWriter.h"

#include "analysis/ClassTable.h"
#include "analysis/ViewController.h"
#include "base/TextRange.h"
#include "platform/linguistics/LexicalTags.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lexiform::cli {

namespace {

// In the order of Colour. Shades of the 256-colour table that can be read on black and on white; the
// text colour is the terminal's own.
constexpr std::array<std::string_view, 10> escapes = {
    "\x1b[38;5;245m", "\x1b[38;5;196m", "\x1b[38;5;33m",  "\x1b[38;5;34m",  "\x1b[38;5;135m",
    "\x1b[38;5;178m", "\x1b[38;5;137m", "\x1b[38;5;205m", "\x1b[38;5;208m", "\x1b[39m"};
constexpr std::string_view reset = "\x1b[0m";

std::string_view escapeFor(Colour colour) {
    return escapes[static_cast<std::size_t>(colour)];
}

bool isControl(unsigned char byte) {
    return (byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r') || byte == 0x7F;
}

/// U+2400 and the following show the control characters of ASCII; U+2421 shows the last.
void appendPicture(unsigned char control, std::string& out) {
    out += "\xE2\x90";
    out += static_cast<char>(control == 0x7F ? 0xA1 : 0x80 + control);
}

/// How many bytes at `at` are a character that some terminals obey: a C1 control (C2 and 80 to 9F) or
/// one that turns the direction of writing (U+202A to U+202E, U+2066 to U+2069). 0 for any other.
std::size_t steeringBytes(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) {
        return at + i < text.size() ? static_cast<unsigned char>(text[at + i]) : 0U;
    };
    if (byte(0) == 0xC2) return byte(1) >= 0x80 && byte(1) < 0xA0 ? 2 : 0;
    if (byte(0) != 0xE2) return 0;
    const bool turnsText = byte(1) == 0x80 && byte(2) >= 0xAA && byte(2) <= 0xAE;
    const bool isolates = byte(1) == 0x81 && byte(2) >= 0xA6 && byte(2) <= 0xA9;
    return turnsText || isolates ? 3 : 0;
}

void appendHarmless(std::string_view token, std::string& out) {
    if (token == "\r") token = "\n";
    for (std::size_t at = 0; at < token.size(); ++at) {
        const auto byte = static_cast<unsigned char>(token[at]);
        if (isControl(byte))
            appendPicture(byte, out);
        else if (const std::size_t steering = steeringBytes(token, at); steering > 0) {
            out += "\xEF\xBF\xBD"; // U+FFFD
            at += steering - 1;
        } else
            out += token[at];
    }
}

} // namespace

void AnsiWriter::paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) {
    const std::string_view text = block.text;
    for (const linguistics::Token& token : paragraph.tokens) {
        // White space shows no colour, so that it needs no switch.
        if (!isBlank(token)) switchTo(classRow(nameTypeOrLexicalClass(token, text)).colour, out.text);
        appendHarmless(substring(text, token.range), out.text);
    }
}

void AnsiWriter::endBlock(Piece& out) {
    if (current_) out.text += reset;
    current_.reset();
}

void AnsiWriter::switchTo(Colour colour, std::string& out) {
    if (current_ == colour) return;
    out += escapeFor(colour);
    current_ = colour;
}

std::string ansiKey() {
    std::string key;
    std::string_view lines = ViewController::stdColourKeys;
    for (const Colour colour : ViewController::stdColours) {
        const std::string_view name = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(std::min(lines.size(), name.size() + 2));
        key.append(key.empty() ? "" : "  ").append(escapeFor(colour)).append("\xE2\x96\xA0 ").append(name);
    }
    return key.append(reset).append("\n");
}

} // namespace lexiform::cli
