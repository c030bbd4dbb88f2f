#pragma once

#include "base/AttributedText.h"
#include "base/Outcome.h"
#include "document/format/Format.h"
#include "document/format/ReadFault.h"

#include <optional>
#include <string_view>

namespace lexiform::document {

/// What a caller knows of the bytes beforehand.
struct ReadHints {
    /// The format in which the bytes are read, whatever they look like. Absent, their content tells.
    std::optional<Format> format;
};

/// The characters of a file in any format that is known, with the colours that are ours; all others are
/// the text colour. Bytes in none of the formats, damaged beyond reading, or nested or unpacking beyond all
/// honest measure are faults; so are no bytes at all.
[[nodiscard]] Outcome<AttributedText, ReadFault> readAttributedText(std::string_view bytes,
                                                                    const ReadHints& hints = {});

} // namespace lexiform::document
