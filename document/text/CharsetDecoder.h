#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct UConverter;

namespace lexiform::document {

/// Turns bytes in one character set into UTF-8.
class CharsetDecoder {
public:
    /// A decoder for a name or alias that ICU knows; nothing for any other name.
    [[nodiscard]] static std::optional<CharsetDecoder> named(const std::string& name);

    /// Appends the text of `bytes`, which are whole: nothing carries over to the next call. Bytes that
    /// mean nothing become U+FFFD. Gives whether there were none of them.
    bool append(std::string_view bytes, std::string& text);

private:
    struct Close {
        void operator()(UConverter* converter) const;
    };
    explicit CharsetDecoder(UConverter* converter) : converter_(converter) {}

    std::unique_ptr<UConverter, Close> converter_;
};

} // namespace lexiform::document
