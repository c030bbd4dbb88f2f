#include "document/rtf/RtfScanner.h"

#include <algorithm>
#include <limits>

namespace lexiform::document {

namespace {

constexpr std::string_view endOfText = "\\{}\r\n";

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::optional<std::int32_t> hexDigit(char c) {
    if (isDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return std::nullopt;
}

} // namespace

RtfToken RtfScanner::next() {
    at_ = std::min(bytes_.find_first_not_of("\r\n", at_), bytes_.size());
    if (atEnd()) return {};
    switch (bytes_[at_]) {
    case '{':
        return {RtfToken::Kind::open, bytes_.substr(at_++, 1), {}};
    case '}':
        return {RtfToken::Kind::close, bytes_.substr(at_++, 1), {}};
    case '\\':
        ++at_;
        return afterBackslash();
    default:
        return text();
    }
}

void RtfScanner::skip(std::size_t count) {
    at_ += std::min(count, bytes_.size() - at_);
}

RtfToken RtfScanner::afterBackslash() {
    if (atEnd()) return {};
    if (isLetter(bytes_[at_])) return word();
    if (bytes_[at_] == '\'') return hexByte();
    return {RtfToken::Kind::symbol, bytes_.substr(at_++, 1), {}};
}

RtfToken RtfScanner::word() {
    const std::size_t start = at_;
    while (!atEnd() && isLetter(bytes_[at_]))
        ++at_;
    RtfToken token{RtfToken::Kind::word, bytes_.substr(start, at_ - start), number()};
    if (!atEnd() && bytes_[at_] == ' ') ++at_;
    return token;
}

std::optional<std::int32_t> RtfScanner::number() {
    const bool isNegative = at_ + 1 < bytes_.size() && bytes_[at_] == '-' && isDigit(bytes_[at_ + 1]);
    if (isNegative) ++at_;
    if (atEnd() || !isDigit(bytes_[at_])) return std::nullopt;
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    std::int64_t value = 0;
    for (; !atEnd() && isDigit(bytes_[at_]); ++at_)
        value = std::min(value * 10 + (bytes_[at_] - '0'), most);
    return static_cast<std::int32_t>(isNegative ? -value : value);
}

RtfToken RtfScanner::hexByte() {
    ++at_;
    std::int32_t value = 0;
    std::size_t digits = 0;
    for (; digits < 2 && !atEnd(); ++digits, ++at_) {
        const auto digit = hexDigit(bytes_[at_]);
        if (!digit) break;
        value = value * 16 + *digit;
    }
    // Without its digits it stands for nothing, as an unknown symbol does.
    if (digits == 0) return {RtfToken::Kind::symbol, {}, {}};
    return {RtfToken::Kind::byte, {}, value};
}

RtfToken RtfScanner::text() {
    const std::size_t end = std::min(bytes_.find_first_of(endOfText, at_), bytes_.size());
    const RtfToken token{RtfToken::Kind::text, bytes_.substr(at_, end - at_), {}};
    at_ = end;
    return token;
}

} // namespace lexiform::document
