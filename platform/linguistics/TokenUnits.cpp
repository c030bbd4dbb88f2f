#include "platform/linguistics/TokenUnits.h"

#include <algorithm>

namespace lexiform {

namespace {

using linguistics::isBlank;
using linguistics::NameType;
using linguistics::Paragraph;
using linguistics::Token;
using linguistics::TokenKind;
using linguistics::UniversalPos;

bool isOther(const Token& token) {
    return token.name == NameType::none && (token.pos == UniversalPos::X || token.pos == UniversalPos::SYM);
}

bool isLeftOut(const Token& token, NLTaggerOptions options) {
    if (isBlank(token)) return options.contains(NLTaggerOption::omitWhitespace);
    if (token.pos == UniversalPos::PUNCT) return options.contains(NLTaggerOption::omitPunctuation);
    if (isOther(token)) return options.contains(NLTaggerOption::omitOther);
    return options.contains(NLTaggerOption::omitWords);
}

/// One past the last token of the name that starts at `first`.
std::size_t endOfName(const std::vector<Token>& tokens, std::size_t first) {
    std::size_t end = first + 1;
    for (std::size_t next = end; next < tokens.size(); ++next) {
        if (tokens[next].kind == TokenKind::whitespace) continue;
        if (tokens[next].name != tokens[first].name || tokens[next].startsName) break;
        end = next + 1;
    }
    return end;
}

TextRange rangeOf(const Token& first, const Token& last) {
    return {first.range.start, last.range.end() - first.range.start};
}

/// The tag of the first of the tokens that is no white space, as long as there is one.
std::optional<std::string_view> firstTag(const Token* begin, const Token* end, std::string_view text,
                                         TagOfToken tagOf) {
    const Token* const word = std::find_if_not(begin, end, isBlank);
    return word == end ? std::nullopt : tagOf(*word, text);
}

} // namespace

std::vector<TaggedUnit> wordsOf(const Paragraph& paragraph, std::string_view text, TagOfToken tagOf,
                                NLTaggerOptions options) {
    const std::vector<Token>& tokens = paragraph.tokens;
    const bool joinsNames = options.contains(NLTaggerOption::joinNames);
    std::vector<TaggedUnit> words;
    words.reserve(tokens.size());
    for (std::size_t first = 0; first < tokens.size();) {
        const bool joined = joinsNames && tokens[first].name != NameType::none;
        const std::size_t end = joined ? endOfName(tokens, first) : first + 1;
        if (!isLeftOut(tokens[first], options))
            words.push_back({rangeOf(tokens[first], tokens[end - 1]), tagOf(tokens[first], text)});
        first = end;
    }
    return words;
}

std::vector<TaggedUnit> sentencesOf(const Paragraph& paragraph, std::string_view text, TagOfToken tagOf) {
    const std::vector<Token>& tokens = paragraph.tokens;
    std::vector<TaggedUnit> sentences;
    for (std::size_t first = 0; first < tokens.size();) {
        // White space before the first sentence belongs to it: the sentences leave no gap.
        std::size_t end = first;
        while (end < tokens.size() && (isBlank(tokens[end]) && !tokens[end].startsSentence))
            ++end;
        end = std::min(end + 1, tokens.size());
        while (end < tokens.size() && !tokens[end].startsSentence)
            ++end;
        sentences.push_back({rangeOf(tokens[first], tokens[end - 1]),
                             firstTag(tokens.data() + first, tokens.data() + end, text, tagOf)});
        first = end;
    }
    return sentences;
}

TaggedUnit wholeOf(const Paragraph& paragraph, std::string_view text, TagOfToken tagOf) {
    const std::vector<Token>& tokens = paragraph.tokens;
    return {paragraph.range, firstTag(tokens.data(), tokens.data() + tokens.size(), text, tagOf)};
}

} // namespace lexiform
