#include "tools/train/lexicon/JsonStrings.h"

#include <charconv>

namespace lexiform::train {

namespace {

// Of the basic plane only: the dictionaries escape nothing else.
void appendUtf8(std::string& text, unsigned value) {
    if (value < 0x80) {
        text += static_cast<char>(value);
    } else if (value < 0x800) {
        text += static_cast<char>(0xC0 | value >> 6);
        text += static_cast<char>(0x80 | (value & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | value >> 12);
        text += static_cast<char>(0x80 | (value >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (value & 0x3F));
    }
}

// Appends what the escape at `at`, a backslash, stands for; answers where it ends.
std::size_t unescape(std::string_view json, std::size_t at, std::string& string) {
    constexpr std::size_t digits = 4;
    if (json[at + 1] != 'u' || at + 2 + digits > json.size()) {
        string += json[at + 1];
        return at + 2;
    }
    unsigned value = 0;
    const char* start = json.data() + at + 2;
    std::from_chars(start, start + digits, value, 16);
    appendUtf8(string, value);
    return at + 2 + digits;
}

// Reads the string that opens at `at`; answers where it ends, past the text for a broken one.
std::size_t readString(std::string_view json, std::size_t at, std::string& string) {
    string.clear();
    for (++at; at < json.size() && json[at] != '"';) {
        if (json[at] == '\\' && at + 1 < json.size())
            at = unescape(json, at, string);
        else
            string += json[at++];
    }
    return at + 1;
}

} // namespace

void eachString(std::string_view json,
                const std::function<void(const std::string& string, std::size_t depth)>& take) {
    std::size_t depth = 0;
    std::string string;
    for (std::size_t at = 0; at < json.size();) {
        const char c = json[at];
        if (c == '"') {
            at = readString(json, at, string);
            if (at <= json.size()) take(string, depth);
            continue;
        }
        if (c == '{' || c == '[') ++depth;
        if ((c == '}' || c == ']') && depth > 0) --depth;
        ++at;
    }
}

} // namespace lexiform::train
