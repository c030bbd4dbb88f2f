#include "document/html/pageSource.h"

#include "document/text/declaredCharset.h"
#include "document/text/utf8.h"

#include <algorithm>
#include <array>

namespace lexiform::document {

namespace {

constexpr std::string_view pageSpaces = " \t\r\n\f";

constexpr std::array<std::string_view, 17> firstTags = {
    "!doctype html", "html",  "head", "script", "iframe", "h1", "div", "font", "table", "a",
    "style",         "title", "b",    "body",   "br",     "p",  "meta"};

bool startsWithTag(std::string_view text, std::string_view tag) {
    if (text.size() <= tag.size()) return false;
    const bool isSame = std::equal(tag.begin(), tag.end(), text.begin(), [](char a, char b) {
        return a == (b >= 'A' && b <= 'Z' ? static_cast<char>(b + 32) : b);
    });
    const char behind = text[tag.size()];
    return isSame && (behind == '>' || pageSpaces.find(behind) != std::string_view::npos);
}

/// Steps over what begins with `start`, up to the end of `end`. Gives whether there was such a piece.
bool step(std::string_view& text, std::string_view start, std::string_view end) {
    if (!text.starts_with(start)) return false;
    const std::size_t found = text.find(end, start.size());
    text.remove_prefix(found == std::string_view::npos ? text.size() : found + end.size());
    return true;
}

// A doctype of XHTML or old HTML has white space of any kind behind its first word.
bool startsWithDoctype(std::string_view text) {
    constexpr std::string_view word = "!doctype";
    if (!startsWithTag(text, word)) return false;
    text.remove_prefix(word.size());
    text.remove_prefix(std::min(text.find_first_not_of(pageSpaces), text.size()));
    return startsWithTag(text, "html");
}

// HTML standard, "Numeric character reference end state".
constexpr std::array<char32_t, 32> windowsLetters = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool isDropped(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && pageSpaces.find(c) == std::string_view::npos) || byte == 0x7F;
}

} // namespace

bool startsAsPage(std::string_view text) {
    bool stepped = true;
    while (stepped) {
        text.remove_prefix(std::min(text.find_first_not_of(pageSpaces), text.size()));
        stepped = step(text, "<!--", "-->") || step(text, "<?", "?>");
    }
    if (!text.starts_with('<')) return false;
    text.remove_prefix(1);
    return startsWithDoctype(text) ||
           std::any_of(firstTags.begin(), firstTags.end(),
                       [&](std::string_view tag) { return startsWithTag(text, tag); });
}

std::string withWindowsLetters(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isPair = text[at] == '\xC2' && at + 1 < text.size();
        const auto trail = isPair ? static_cast<unsigned char>(text[at + 1]) : 0xFFU;
        if (trail < 0xA0) {
            appendCodePoint(windowsLetters[trail - 0x80], result);
            ++at;
        } else {
            result += text[at];
        }
    }
    return result;
}

std::optional<std::string> pageSource(std::string_view bytes) {
    auto text = decodeMarkup(bytes);
    if (!text) return std::nullopt;
    std::size_t kept = 0;
    for (std::size_t at = 0; at < text->size(); ++at) {
        const char c = (*text)[at];
        const bool isHalfLineEnd = c == '\r' && at + 1 < text->size() && (*text)[at + 1] == '\n';
        if (!isHalfLineEnd && !isDropped(c)) (*text)[kept++] = c == '\r' ? '\n' : c;
    }
    text->resize(kept);
    return text;
}

} // namespace lexiform::document
