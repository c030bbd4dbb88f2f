#include "app/plist/TextScanner.h"

#include "app/plist/quotedText.h"

#include <algorithm>
#include <array>

namespace lexiform::plist {

namespace {

constexpr std::array<std::string_view, 8> spaces = {" ",  "\t", "\n",           "\v",
                                                    "\f", "\r", "\xE2\x80\xA8", "\xE2\x80\xA9"};

/// The length of the white space that `text` starts with, 0 for none.
std::size_t spaceLength(std::string_view text) {
    const auto* const space = std::find_if(spaces.begin(), spaces.end(), [&](std::string_view candidate) {
        return text.starts_with(candidate);
    });
    return space == spaces.end() ? 0 : space->size();
}

bool belongsToWord(char c) {
    const bool isLetterOrDigit = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return isLetterOrDigit || std::string_view("_$/:.-").find(c) != std::string_view::npos;
}

} // namespace

void TextScanner::skipSpace() {
    while (!isAtEnd()) {
        const std::size_t length = spaceLength(text_.substr(at_));
        at_ += length;
        if (length == 0 && !skipComment()) return;
    }
}

bool TextScanner::skipComment() {
    const std::string_view rest = text_.substr(at_);
    if (rest.starts_with("//")) {
        at_ = std::min(text_.find_first_of("\r\n", at_), text_.size());
        return true;
    }
    const std::size_t end = rest.starts_with("/*") ? text_.find("*/", at_ + 2) : std::string_view::npos;
    if (end == std::string_view::npos) return false;
    at_ = end + 2;
    return true;
}

bool TextScanner::take(char character) {
    if (isAtEnd() || text_[at_] != character) return false;
    ++at_;
    return true;
}

std::optional<std::string> TextScanner::takeString() {
    for (const char mark : {'"', '\''})
        if (take(mark)) return takeQuoted(text_, at_, mark);
    const std::size_t start = at_;
    while (!isAtEnd() && belongsToWord(text_[at_]))
        ++at_;
    if (at_ == start) return std::nullopt;
    return std::string(text_.substr(start, at_ - start));
}

std::optional<std::string> TextScanner::takeHexadecimal() {
    std::string bytes;
    std::size_t digits = 0;
    unsigned byte = 0;
    for (;;) {
        if (const std::size_t space = isAtEnd() ? 0 : spaceLength(text_.substr(at_)); space > 0) {
            at_ += space;
            continue;
        }
        const auto digit = isAtEnd() ? std::nullopt : digitOf(text_[at_], 16);
        if (!digit) break;
        ++at_;
        byte = (byte << 4U) | *digit;
        if (++digits % 2 == 0) bytes += static_cast<char>(byte & 0xFFU);
    }
    return digits % 2 == 0 ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace lexiform::plist
