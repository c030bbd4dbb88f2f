#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lexiform::document {

/// A piece of an RTF file.
struct RtfToken {
    enum class Kind : std::uint8_t { open, close, word, symbol, byte, text, end };

    Kind kind = Kind::end;
    /// The letters of a word, the character of a symbol, or bytes of text; a part of the file.
    std::string_view text;
    /// The number behind a word, held within 32 bits, or the value of a byte that is written in hexadecimal.
    std::optional<std::int32_t> number;
};

/// Cuts the bytes of an RTF file into tokens (Rich Text Format 1.9, "RTF Syntax"). Line
/// ends between tokens are no tokens. A file that is cut short just ends earlier.
class RtfScanner {
public:
    /// `bytes` must outlive the scanner.
    explicit RtfScanner(std::string_view bytes) : bytes_(bytes) {}

    /// The next token; of the kind `end` at the end, however often it is asked.
    [[nodiscard]] RtfToken next();
    /// Steps over raw bytes, no further than to the end.
    void skip(std::size_t count);

private:
    [[nodiscard]] RtfToken afterBackslash();
    [[nodiscard]] RtfToken word();
    [[nodiscard]] RtfToken hexByte();
    [[nodiscard]] RtfToken text();
    [[nodiscard]] std::optional<std::int32_t> number();
    [[nodiscard]] bool atEnd() const { return at_ >= bytes_.size(); }

    std::string_view bytes_;
    std::size_t at_ = 0;
};

} // namespace lexiform::document
