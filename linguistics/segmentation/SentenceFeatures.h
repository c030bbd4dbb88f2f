#pragma once

#include "linguistics/segmentation/FeatureList.h"
#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/text/Analysis.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace lexiform::linguistics {

/// What stands between two visible tokens.
enum class SentenceGap : std::uint8_t { none, space, wideSpace, wrappedLine, line, lines };

/// What has been read of the sentence at hand and of its line.
struct OpenSentence {
    std::uint32_t tokens = 0;     ///< visible ones
    std::uint32_t lineTokens = 0; ///< those since the line started
    bool inQuotes = false;        ///< an odd number of straight quotes, or an opening one unclosed
    std::uint32_t brackets = 0;   ///< open ones
    std::uint32_t first = 0;      ///< the shape of its first token

    void add(std::string_view token, std::uint32_t shape);
};

/// A place where a sentence may end: after the visible token of index `last`, before that of index `next`.
struct SentencePlace {
    std::size_t last = 0, next = 0;
    /// The token whose mark may end the sentence: `last`, or one before the quotes and brackets that close
    /// after it.
    std::size_t ending = 0;
    SentenceGap gap = SentenceGap::none;
};

/// The shape of a token: case and length of a word, the mark itself.
[[nodiscard]] std::uint32_t shapeOfToken(std::string_view spelling, TokenKind kind);

/// Replaces `features` by those of the question whether a sentence ends at `place`; the ranges of
/// `tokens` count from the start of `text`, and say where the rules start sentences. `style` tells
/// paragraphs apart that punctuate otherwise.
void sentenceFeatures(std::string_view text, std::span<const Token> tokens, const SentencePlace& place,
                      const OpenSentence& sentence, std::uint32_t style, const LearnedSegmentation& learned,
                      FeatureList& features);

} // namespace lexiform::linguistics
