#include "tools/lexiform-cli/HtmlWriter.h"

#include "base/TextRange.h"
#include "base/lightValue.h"
#include "tools/lexiform-cli/tokenColour.h"

#include <array>
#include <cstdio>

namespace lexiform::cli {

namespace {

// A line feed right behind the tag is no part of the text.
constexpr const char* head =
    "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>Lexiform</title>\n"
    "<style>pre { white-space: pre-wrap; }</style>\n</head>\n<body>\n<pre>\n";

std::string valueOf(Colour colour) {
    const Rgb value = lightValue(colour);
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", value.red, value.green, value.blue);
    return text.data();
}

bool isControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return (byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r') || byte == 0x7F;
}

void appendEscaped(std::string_view text, std::string& out) {
    for (const char character : text) {
        if (character == '&')
            out += "&amp;";
        else if (character == '<')
            out += "&lt;";
        else if (character == '>')
            out += "&gt;";
        else if (isControl(character))
            out += "\xEF\xBF\xBD"; // U+FFFD
        else
            out += character;
    }
}

} // namespace

std::string HtmlFormat::start() const {
    return head;
}

void HtmlWriter::paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) {
    for (const linguistics::Token& token : paragraph.tokens) {
        // White space shows no colour, so that it needs no switch.
        if (!isBlank(token)) switchTo(tokenColour(token, block.text), out.text);
        appendEscaped(substring(block.text, token.range), out.text);
    }
}

void HtmlWriter::switchTo(Colour colour, std::string& out) {
    if (current_ == colour) return;
    if (current_ != Colour::text) out += "</span>";
    if (colour != Colour::text) out += "<span style=\"color: " + valueOf(colour) + "\">";
    current_ = colour;
}

} // namespace lexiform::cli
