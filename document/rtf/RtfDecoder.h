#pragma once

#include "document/text/CharsetDecoder.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace lexiform::document {

/// Turns the bytes of an RTF file, each stretch in a code page of its own, into UTF-8.
class RtfDecoder {
public:
    /// The text of `bytes`. A code page that is unknown counts as Western.
    [[nodiscard]] std::string decoded(std::string_view bytes, std::int32_t codePage);

private:
    CharsetDecoder& decoderOf(std::int32_t codePage);

    std::map<std::int32_t, std::optional<CharsetDecoder>> decoders_;
};

/// The character of a symbol in the private use area, where Windows puts fonts of symbols: bullets become
/// letters of Unicode, others stay.
[[nodiscard]] char32_t symbolOf(char32_t codePoint);

} // namespace lexiform::document
