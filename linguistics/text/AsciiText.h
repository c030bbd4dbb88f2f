#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

// Questions about single bytes of UTF-8 text; all say no for bytes above 0x7F, in every locale.

constexpr bool isAsciiDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isAsciiUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
constexpr bool isAsciiLower(char c) {
    return c >= 'a' && c <= 'z';
}
constexpr bool isAsciiLetter(char c) {
    return isAsciiUpper(c) || isAsciiLower(c);
}
constexpr bool isAsciiAlnum(char c) {
    return isAsciiLetter(c) || isAsciiDigit(c);
}
constexpr char asciiLower(char c) {
    return isAsciiUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

/// A short ASCII text in lower case, without allocation: for look-ups in small lists of words. A
/// longer text, which is in no such list, becomes empty.
class LowerCasedWord {
public:
    explicit LowerCasedWord(std::string_view word) {
        if (word.size() > letters_.size()) return;
        length_ = word.size();
        std::transform(word.begin(), word.end(), letters_.begin(), asciiLower);
    }
    [[nodiscard]] std::string_view view() const { return {letters_.data(), length_}; }

private:
    std::array<char, 16> letters_{};
    std::size_t length_ = 0;
};

/// Whether a sorted list holds `word`.
template <std::size_t size>
constexpr bool holds(const std::array<std::string_view, size>& sorted, std::string_view word) {
    return std::binary_search(sorted.begin(), sorted.end(), word);
}

} // namespace lexiform::linguistics
