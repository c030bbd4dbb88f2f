#include "analysis/WordLookUp.h"

#include <algorithm>
#include <utility>

namespace lexiform {

namespace {

constexpr std::size_t farthest = std::size_t{32} * 1024;
constexpr std::string_view inBlankLines = " \t\r";

/// Whether the line feed at a place ends a line that holds white space at most.
bool endsBlankLine(std::string_view text, std::size_t lineFeed) {
    const std::size_t before =
        lineFeed == 0 ? std::string_view::npos : text.find_last_not_of(inBlankLines, lineFeed - 1);
    return before != std::string_view::npos && text[before] == '\n';
}

std::size_t startBefore(std::string_view text, std::size_t byte) {
    const std::size_t limit = byte > farthest ? byte - farthest : 0;
    std::size_t nearest = limit;
    for (std::size_t at = byte; at > limit; --at) {
        if (text[at - 1] != '\n') continue;
        if (endsBlankLine(text, at - 1)) return at;
        if (nearest == limit) nearest = at;
    }
    return limit == 0 ? 0 : nearest;
}

std::size_t endAfter(std::string_view text, std::size_t byte) {
    const std::size_t limit = std::min(text.size(), byte + farthest);
    std::size_t nearest = limit;
    for (std::size_t at = byte; at < limit; ++at) {
        if (text[at] != '\n') continue;
        if (endsBlankLine(text, at)) return at + 1;
        if (nearest == limit) nearest = at + 1;
    }
    return limit == text.size() ? limit : nearest;
}

/// The next place at or after one at which a code point begins.
std::size_t codePointFrom(std::string_view text, std::size_t at) {
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U)
        ++at;
    return at;
}

} // namespace

TextRange paragraphAround(std::string_view text, std::size_t byte) {
    const std::size_t start = codePointFrom(text, startBefore(text, byte));
    return {start, codePointFrom(text, endAfter(text, byte)) - start};
}

WordLookUp::WordLookUp(std::unique_ptr<Tagger> tagger, std::string text)
    : tagger_(std::move(tagger)), text_(std::move(text)) {
    tagger_->setString(text_);
}

std::optional<WordDetails> WordLookUp::at(std::size_t byte) {
    if (byte >= text_.size()) return std::nullopt;
    const TextRange paragraph = paragraphAround(text_, byte);
    return WordDetails{.type = tagAt(byte, paragraph, NLTagSchemeNameTypeOrLexicalClass),
                       .lemma = tagAt(byte, paragraph, NLTagSchemeLemma),
                       .language = tagAt(byte, paragraph, NLTagSchemeLanguage),
                       .script = tagAt(byte, paragraph, NLTagSchemeScript)};
}

std::optional<std::string> WordLookUp::tagAt(std::size_t byte, TextRange paragraph, TagScheme scheme) {
    std::optional<std::string> found;
    tagger_->enumerateTags(paragraph, NLTokenUnit::word, scheme, NLTaggerOptions(),
                           [&](std::optional<std::string_view> tag, TextRange token) {
                               if (token.end() <= byte) return Next::proceed;
                               if (tag && token.start <= byte) found = *tag;
                               return Next::stop;
                           });
    return found;
}

} // namespace lexiform
