#include "app/plist/quotedText.h"

#include "app/plist/octalCharacters.h"
#include "document/text/utf8.h"

#include <algorithm>

namespace lexiform::plist {

namespace {

bool isHigh(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLow(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

/// A string that is made of pieces of UTF-8 and units of UTF-16.
class Pieces {
public:
    [[nodiscard]] bool append(std::string_view piece) {
        text_ += piece;
        return high_ == 0;
    }
    [[nodiscard]] bool append(char32_t unit) {
        if (isLow(unit) != (high_ != 0)) return false;
        if (isLow(unit)) unit = 0x10000 + ((high_ - 0xD800) << 10U) + (unit - 0xDC00);
        high_ = isHigh(unit) ? unit : 0;
        if (high_ == 0) document::appendCodePoint(unit, text_);
        return true;
    }
    [[nodiscard]] std::optional<std::string> take() && {
        return high_ == 0 ? std::optional(std::move(text_)) : std::nullopt;
    }

private:
    std::string text_;
    char32_t high_ = 0; ///< waits for its other half
};

/// The number that up to `most` digits at `at` are, and `at` moved behind them; nothing where there is none.
std::optional<unsigned> takeNumber(std::string_view text, std::size_t& at, unsigned base, std::size_t most) {
    const std::size_t start = at;
    unsigned number = 0;
    for (; at < text.size() && at < start + most; ++at) {
        const auto digit = digitOf(text[at], base);
        if (!digit) break;
        number = number * base + *digit;
    }
    return at == start ? std::nullopt : std::optional(number);
}

std::optional<char32_t> controlOf(char letter) {
    constexpr std::string_view letters = "abfnrtv";
    constexpr std::string_view controls = "\a\b\f\n\r\t\v";
    const std::size_t place = letters.find(letter);
    if (place == std::string_view::npos) return std::nullopt;
    return static_cast<char32_t>(controls[place]);
}

/// Appends what the backslash before `at` stands for. What it only protects stays to be read.
bool takeEscape(std::string_view text, std::size_t& at, Pieces& pieces) {
    if (at == text.size()) return false;
    if (const auto octal = takeNumber(text, at, 8, 3))
        return *octal <= 0xFF && pieces.append(octalCharacter(*octal));
    if (text[at] == 'U') {
        const auto unit = takeNumber(text, ++at, 16, 4);
        return unit && pieces.append(char32_t{*unit});
    }
    const auto control = controlOf(text[at]);
    const bool isTaken = control ? pieces.append(*control) : pieces.append(text.substr(at, 1));
    ++at;
    return isTaken;
}

} // namespace

std::optional<unsigned> digitOf(char character, unsigned base) {
    unsigned digit = base;
    if (character >= '0' && character <= '9') digit = static_cast<unsigned>(character - '0');
    if (character >= 'a' && character <= 'f') digit = static_cast<unsigned>(character - 'a') + 10;
    if (character >= 'A' && character <= 'F') digit = static_cast<unsigned>(character - 'A') + 10;
    return digit < base ? std::optional(digit) : std::nullopt;
}

std::optional<std::string> takeQuoted(std::string_view text, std::size_t& at, char mark) {
    Pieces pieces;
    while (at < text.size() && text[at] != mark) {
        const std::size_t start = at;
        while (at < text.size() && text[at] != mark && text[at] != '\\')
            ++at;
        if (at > start && !pieces.append(text.substr(start, at - start))) return std::nullopt;
        if (at < text.size() && text[at] == '\\' && !takeEscape(text, ++at, pieces)) return std::nullopt;
    }
    if (at == text.size()) return std::nullopt;
    ++at;
    return std::move(pieces).take();
}

} // namespace lexiform::plist
