#pragma once

#include "base/TextRange.h"
#include "linguistics/text/UniversalPos.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// What a token is by its characters alone.
enum class TokenKind : std::uint8_t {
    word,        ///< letters, digits and what holds them together; URLs, handles and the like
    punctuation, ///< punctuation marks
    symbol,      ///< other marks: currency, mathematics, emoji, control characters, stray bytes
    whitespace,  ///< a run of white space within a line
    lineBreak,   ///< one line or paragraph separator: \n, \r\n, \r, VT, FF, U+0085, U+2028, U+2029
};

/// Whose name a token is part of.
enum class NameType : std::uint8_t { none, person, place, organization };

/// How much an analysis tells of its tokens. Each tells what those before it do, and takes longer.
enum class Depth : std::uint8_t {
    languages, ///< their kinds, sentences, scripts and languages; of parts of speech what characters tell
    classes,   ///< their parts of speech, names and classifiers as well
    lemmas,    ///< all that a token holds
};

/// One token of a text. Every byte of a paragraph lies in exactly one of its tokens.
struct Token {
    TextRange range{}; ///< bytes of the analysed text
    TokenKind kind = TokenKind::word;
    /// Meaningless for white space and line breaks.
    UniversalPos pos = UniversalPos::X;
    NameType name = NameType::none;
    /// True for the first token of a name (the tokens of one name follow each other, white space aside).
    bool startsName = false;
    /// True for a noun that stands behind a number as a classifier, as in Chinese.
    bool isClassifier = false;
    /// True for the first token of a sentence, which is never white space unless the paragraph holds nothing
    /// else.
    bool startsSentence = false;
    /// ISO 15924, four ASCII letters, for example "Latn"; empty where the text tells none.
    std::string_view script{};
    /// BCP 47, for example "en"; empty where it cannot be told. Lasts as long as the paragraph.
    std::string_view language{};
    /// The dictionary form; nothing for white space, and where none was asked for. Lasts as long as the
    /// paragraph.
    std::optional<std::string_view> lemma{};
};

/// Whether a token is white space, within a line or at its end.
[[nodiscard]] inline bool isBlank(const Token& token) {
    return token.kind == TokenKind::whitespace || token.kind == TokenKind::lineBreak;
}

/// A paragraph, the unit of analysis: its tokens depend on nothing outside it. The line breaks that
/// end it belong to it, so paragraphs cover the text without gaps.
struct Paragraph {
    TextRange range{}; ///< bytes of the analysed text
    std::vector<Token> tokens{};
};

} // namespace lexiform::linguistics
