#include "linguistics/segmentation/SentenceMarker.h"

#include "linguistics/segmentation/EnglishWords.h"
#include "linguistics/segmentation/LearnedSentences.h"
#include "linguistics/segmentation/LineWrapping.h"
#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Characters.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lexiform::linguistics {

namespace {

using namespace std::string_view_literals;

// Words that start a sentence when they follow an abbreviation with a capital.
constexpr std::array sentenceStarters = {
    "a"sv,     "after"sv, "also"sv,  "an"sv,    "and"sv,  "as"sv,   "at"sv, "but"sv,  "for"sv,
    "he"sv,    "her"sv,   "here"sv,  "his"sv,   "how"sv,  "i"sv,    "if"sv, "in"sv,   "is"sv,
    "it"sv,    "my"sv,    "no"sv,    "on"sv,    "our"sv,  "she"sv,  "so"sv, "some"sv, "the"sv,
    "their"sv, "then"sv,  "there"sv, "these"sv, "they"sv, "this"sv, "to"sv, "we"sv,   "what"sv,
    "when"sv,  "while"sv, "who"sv,   "why"sv,   "you"sv};
static_assert(std::is_sorted(sentenceStarters.begin(), sentenceStarters.end()));

enum class Ending { none, fullStop, ellipsis, emphatic, abbreviation, wide };

char32_t firstOf(std::string_view word) {
    return codePointAt(word, 0).value;
}

bool isBracket(char32_t mark) {
    return std::u32string_view(U")]}\uFF09\u3011").find(mark) != std::u32string_view::npos;
}

bool isQuote(char32_t mark) {
    return std::u32string_view(U"\"'\u2019\u201D\u00BB\u203A\u300D\u300F").find(mark) !=
           std::u32string_view::npos;
}

bool isClosing(char32_t mark) {
    return isBracket(mark) || isQuote(mark);
}

Ending endingOfMarks(std::string_view marks) {
    // Full stops of other scripts are as plain as question marks.
    constexpr std::u32string_view emphatic =
        U"!?\u203D\u061F\u203C\u2047\u2048\u2049\u06D4\u0964\u0965\u0589\u1362";
    // After these no space follows.
    constexpr std::u32string_view wide = U"\u3002\uFF01\uFF1F\uFF0E\uFF61";
    const char32_t first = firstOf(marks);
    if (first == '.') return marks.size() == 1 ? Ending::fullStop : Ending::ellipsis;
    if (first == 0x2026) return Ending::ellipsis;
    if (emphatic.find(first) != std::u32string_view::npos) return Ending::emphatic;
    return wide.find(first) != std::u32string_view::npos ? Ending::wide : Ending::none;
}

/// Walks the tokens of a paragraph once.
class Marker {
public:
    Marker(std::string_view text, std::span<Token> tokens, LineBreaks& lineBreaks)
        : text_(text), tokens_(tokens), lineBreaks_(lineBreaks) {}

    void run() {
        std::size_t visible = 0;
        for (std::size_t i = 0; i < tokens_.size();) {
            if (isGap(i)) {
                if (tokens_[i].kind == TokenKind::lineBreak && !lineBreaks_.wraps(lineBreak_++))
                    starts_ = true;
                ++i;
                continue;
            }
            ++visible;
            tokens_[i].startsSentence = starts_;
            starts_ = false;
            i = afterEnding(i);
        }
        if (visible == 0 && !tokens_.empty()) tokens_.front().startsSentence = true;
    }

private:
    bool isGap(std::size_t i) const {
        return tokens_[i].kind == TokenKind::whitespace || tokens_[i].kind == TokenKind::lineBreak;
    }
    std::string_view word(std::size_t i) const { return substring(text_, tokens_[i].range); }

    Ending endingOf(std::size_t i) const {
        const std::string_view token = word(i);
        if (tokens_[i].kind == TokenKind::punctuation) return endingOfMarks(token);
        const bool stopped = tokens_[i].kind == TokenKind::word && token.size() > 1 && token.back() == '.';
        return stopped ? Ending::abbreviation : Ending::none;
    }

    // The token after the sentence that token `i` ends, with `starts_` set, or the token after `i`.
    std::size_t afterEnding(std::size_t i) {
        const Ending ending = endingOf(i);
        if (ending == Ending::none) return i + 1;
        bool quoted = false;
        std::size_t next = i + 1;
        while (next < tokens_.size() && !isGap(next) && tokens_[next].kind == TokenKind::punctuation &&
               isClosing(firstOf(word(next))))
            quoted = isQuote(firstOf(word(next++))) || quoted;
        next = skipCitations(next);
        const std::size_t follower = skipGaps(next);
        if (follower == tokens_.size()) return next;
        const bool gap = follower > next;
        if (gap ? endsBefore(ending, i, follower, quoted) : ending == Ending::wide) starts_ = true;
        return next;
    }

    // "[12]" after a full stop tells the source of the sentence before it.
    std::size_t skipCitations(std::size_t i) const {
        while (true) {
            const std::size_t start = skipGaps(i);
            const bool cites = start + 2 < tokens_.size() && word(start) == "[" && word(start + 2) == "]" &&
                               isAsciiDigit(word(start + 1).front()) && !passesLineBreak(i, start);
            if (!cites) return i;
            i = start + 3;
        }
    }

    bool passesLineBreak(std::size_t from, std::size_t to) const {
        return std::any_of(tokens_.begin() + static_cast<std::ptrdiff_t>(from),
                           tokens_.begin() + static_cast<std::ptrdiff_t>(to),
                           [](const Token& token) { return token.kind == TokenKind::lineBreak; });
    }

    std::size_t skipGaps(std::size_t i) const {
        while (i < tokens_.size() && isGap(i))
            ++i;
        return i;
    }

    bool endsBefore(Ending ending, std::size_t i, std::size_t follower, bool quoted) const {
        const std::string_view next = word(follower);
        const char32_t first = firstOf(next);
        const bool low = isLowerCase(first);
        switch (ending) {
        case Ending::fullStop:
            return !low || (i > 0 && tokens_[i - 1].range.length > 2 && !quoted);
        case Ending::ellipsis:
            return isUpperCase(first);
        case Ending::emphatic:
            return !low || !quoted;
        case Ending::abbreviation:
            return endsAfterAbbreviation(word(i), next);
        default:
            return true;
        }
    }

    static bool endsAfterAbbreviation(std::string_view abbreviation, std::string_view next) {
        const std::string_view stem = abbreviation.substr(0, abbreviation.size() - 1);
        if (stem.size() == 1 || isTitleAbbreviation(stem) || !isUpperCase(firstOf(next))) return false;
        return holds(sentenceStarters, LowerCasedWord(next).view());
    }

    std::string_view text_;
    std::span<Token> tokens_;
    LineBreaks& lineBreaks_;
    std::size_t lineBreak_ = 0;
    bool starts_ = true;
};

} // namespace

void markSentences(std::string_view text, std::span<Token> tokens, const LearnedSegmentation* learned) {
    if (tokens.empty()) return;
    const std::size_t start = tokens.front().range.start;
    LineBreaks lineBreaks(text.substr(start, tokens.back().range.end() - start));
    Marker(text, tokens, lineBreaks).run();
    if (learned && learned->sentenceEnds) reviseSentences(text, tokens, lineBreaks, *learned);
}

} // namespace lexiform::linguistics
