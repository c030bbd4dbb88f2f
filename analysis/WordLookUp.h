#pragma once

#include "analysis/WordDetails.h"
#include "analysis/tagger/Tagger.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace lexiform {

/// Looks up single words of a text that was not kept with its tags: each time it tags the paragraph
/// round the word, which takes a moment however long the text is.
class WordLookUp {
public:
    /// `tagger` is made for the four schemes.
    WordLookUp(std::unique_ptr<Tagger> tagger, std::string text);

    /// The token that holds the byte; nothing past the end of the text.
    [[nodiscard]] std::optional<WordDetails> at(std::size_t byte);

private:
    [[nodiscard]] std::optional<std::string> tagAt(std::size_t byte, TextRange paragraph, TagScheme scheme);

    std::unique_ptr<Tagger> tagger_;
    std::string text_;
};

/// The stretch of `text` round a byte of it that reaches from one blank line to the next. Where there is
/// none for 32 KiB on either side, it ends at the line's end there, or within the line.
[[nodiscard]] TextRange paragraphAround(std::string_view text, std::size_t byte);

} // namespace lexiform
