#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lexiform {

/// An address of the web, kept as it was written.
class WebAddress {
public:
    /// Nothing for a text that is no reference by RFC 3986: an empty one, or one with a character that an
    /// address must escape (a space, a letter beyond ASCII), half an escape, or a second fragment.
    [[nodiscard]] static std::optional<WebAddress> parse(std::string_view text);

    [[nodiscard]] const std::string& string() const { return text_; }

    bool operator==(const WebAddress&) const = default;

private:
    explicit WebAddress(std::string text) : text_(std::move(text)) {}

    std::string text_;
};

} // namespace lexiform
