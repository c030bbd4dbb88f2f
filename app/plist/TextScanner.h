#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lexiform::plist {

/// Takes the smallest parts of a list in the old text form off its text, one after the other.
class TextScanner {
public:
    explicit TextScanner(std::string_view text) : text_(text) {}

    /// Goes on behind white space and comments. A comment that is not closed stays, and nothing
    /// takes its star.
    void skipSpace();
    [[nodiscard]] bool isAtEnd() const { return at_ == text_.size(); }
    /// Steps over a character if it is the next one.
    [[nodiscard]] bool take(char character);
    /// A word, or a string in quotation marks of either kind; nothing where there is none or it is faulty.
    [[nodiscard]] std::optional<std::string> takeString();
    /// The bytes whose hexadecimal digits come next, white space left out; nothing for half a byte.
    [[nodiscard]] std::optional<std::string> takeHexadecimal();

private:
    [[nodiscard]] bool skipComment();

    std::string_view text_;
    std::size_t at_ = 0;
};

} // namespace lexiform::plist
