#include "base/WebAddress.h"

#include <algorithm>

namespace lexiform {

namespace {

constexpr std::string_view marks = "-._~:/?#[]@!$&'()*+,;=%";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

// The letters of ASCII, whatever the locale says.
bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isHexadecimal(char character) {
    return isDigit(character) || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

bool isAllowed(char character) {
    return isDigit(character) || isLetter(character) || marks.find(character) != std::string_view::npos;
}

bool hasWholeEscapes(std::string_view text) {
    for (auto at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1))
        if (at + 2 >= text.size() || !isHexadecimal(text[at + 1]) || !isHexadecimal(text[at + 2]))
            return false;
    return true;
}

} // namespace

std::optional<WebAddress> WebAddress::parse(std::string_view text) {
    const bool isReference = !text.empty() && std::all_of(text.begin(), text.end(), isAllowed) &&
                             hasWholeEscapes(text) && std::count(text.begin(), text.end(), '#') <= 1;
    if (!isReference) return std::nullopt;
    return WebAddress(std::string(text));
}

} // namespace lexiform
