#include "document/markup/crowdedTag.h"

#include <algorithm>
#include <array>

namespace lexiform::document {

namespace {

constexpr std::string_view separators = " \t\r\n\f/";

bool isNameStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool startsWithName(std::string_view text, std::string_view name) {
    const bool isSame =
        text.size() > name.size() &&
        std::equal(name.begin(), name.end(), text.begin(), [](char a, char b) { return a == (b | 0x20); });
    return isSame &&
           (text[name.size()] == '>' || separators.find(text[name.size()]) != std::string_view::npos);
}

/// Counts words outside quotation marks up to the end of the tag, and moves `at` there.
std::size_t wordsInTag(std::string_view text, std::size_t& at) {
    std::size_t words = 0;
    bool inWord = false;
    char previous = '\0';
    for (; at < text.size() && text[at] != '>'; ++at) {
        const char character = text[at];
        const bool opensValue = (character == '"' || character == '\'') && previous == '=';
        if (opensValue) at = std::min(text.find(character, at + 1), text.size() - 1);
        const bool separates = separators.find(character) != std::string_view::npos;
        // What follows a value without a space between is another attribute.
        if (!separates && !inWord) ++words;
        inWord = !separates && !opensValue;
        if (!separates) previous = character;
    }
    return words;
}

struct Region {
    std::string_view start;
    std::string_view end;
};
constexpr std::array<Region, 2> regionsOfXml = {{{"!--", "-->"}, {"![CDATA[", "]]>"}}};
constexpr std::array<Region, 3> regionsOfHtml = {
    {{"!--", "-->"}, {"script", "</script"}, {"style", "</style"}}};

/// The end of what begins behind a `<` at `at` and holds no tags; `at` itself when it is a tag.
template <typename Regions>
std::size_t endOfRegion(std::string_view text, std::size_t at, const Regions& regions) {
    const std::string_view rest = text.substr(at);
    for (const auto& [start, end] : regions) {
        if (isNameStart(start.front()) ? !startsWithName(rest, start) : !rest.starts_with(start)) continue;
        const auto found = std::search(rest.begin(), rest.end(), end.begin(), end.end(),
                                       [](char a, char b) { return a == b || (a | 0x20) == b; });
        return at + static_cast<std::size_t>(found - rest.begin());
    }
    return at;
}

} // namespace

bool hasCrowdedTag(std::string_view text, Markup markup) {
    std::size_t at = text.find('<');
    while (at != std::string_view::npos && at + 1 < text.size()) {
        ++at;
        const bool isTag = isNameStart(text[at]);
        std::size_t tagEnd = at;
        if (isTag && wordsInTag(text, tagEnd) > mostAttributes) return true;
        at = markup == Markup::html ? endOfRegion(text, at, regionsOfHtml)
                                    : endOfRegion(text, at, regionsOfXml);
        at = text.find('<', std::max(at, isTag ? tagEnd : at));
    }
    return false;
}

} // namespace lexiform::document
