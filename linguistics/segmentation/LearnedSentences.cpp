#include "linguistics/segmentation/LearnedSentences.h"

#include "linguistics/segmentation/SentenceFeatures.h"
#include "linguistics/text/Characters.h"

namespace lexiform::linguistics {

namespace {

// Closing marks further back than this from a sentence's end are not looked through.
constexpr int mostClosingMarks = 3;

bool isAmong(std::u32string_view marks, char32_t mark) {
    return marks.find(mark) != std::u32string_view::npos;
}

bool closesAQuotation(char32_t mark) {
    return isAmong(U")]}\"'\u2019\u201D\u201C\u00BB\u203A\u300D\u300F\uFF09\u3011", mark);
}

bool isTerminal(char32_t mark) {
    return isAmong(
        U".!?\u2026:;\u203D\u061F\u203C\u2047\u2048\u2049\u06D4\u0964\u0965\u0589\u1362\u3002\uFF01\uFF1F"
        U"\uFF0E\uFF61\uFF1B\uFF1A",
        mark);
}

// Marks after which no space follows.
bool isWide(char32_t mark) {
    return isAmong(U"\u3002\uFF01\uFF1F\uFF0E\uFF61\uFF1B\u2026", mark);
}

// How a paragraph punctuates: whether it has handles or hash tags, as posts have, and how many of its
// tokens come to one mark that ends sentences, in steps.
std::uint32_t styleOf(std::string_view text, std::span<const Token> tokens) {
    std::size_t words = 0, ends = 0;
    bool hasTags = false;
    for (const Token& token : tokens) {
        if (isBlank(token)) continue;
        ++words;
        const char first = text[token.range.start];
        hasTags = hasTags || (token.range.length > 1 && (first == '@' || first == '#'));
        ends += token.range.length <= 3 && (first == '.' || first == '!' || first == '?');
    }
    const std::size_t share = words / (ends + 1);
    const std::uint32_t step = words < 12 ? 0 : share < 16 ? 1 : share < 24 ? 2 : share < 36 ? 3 : 4;
    return step * 2 + (hasTags ? 1 : 0);
}

/// Walks the tokens of a paragraph once.
class LearnedMarker {
public:
    LearnedMarker(std::string_view text, std::span<Token> tokens, LineBreaks& lineBreaks,
                  const LearnedSegmentation& learned)
        : text_(text), tokens_(tokens), learned_(learned), start_(tokens.front().range.start),
          style_(styleOf(text, tokens)), lineBreaks_(lineBreaks) {}

    void run() {
        std::size_t last = nextVisible(0);
        if (last == tokens_.size()) {
            tokens_.front().startsSentence = true;
            return;
        }
        startSentence(last);
        for (std::size_t next = nextVisible(last + 1); next < tokens_.size(); next = nextVisible(next + 1)) {
            if (endsBetween(last, next)) {
                startSentence(next);
            } else {
                tokens_[next].startsSentence = false;
                sentence_.add(spelling(next), 0);
            }
            last = next;
        }
    }

private:
    std::string_view spelling(std::size_t i) const { return substring(text_, tokens_[i].range); }
    char32_t firstOf(std::size_t i) const { return codePointAt(spelling(i), 0).value; }

    // Reads the gap before the token that it gives as it goes.
    std::size_t nextVisible(std::size_t i) {
        gap_ = SentenceGap::none;
        std::size_t breaks = 0, spaces = 0;
        bool ends = false;
        for (; i < tokens_.size() && isBlank(tokens_[i]); ++i) {
            if (tokens_[i].kind == TokenKind::lineBreak) {
                ++breaks;
                ends = !lineBreaks_.wraps(lineBreak_++) || ends;
            } else {
                spaces += tokens_[i].range.length;
            }
        }
        if (breaks > 0)
            gap_ = !ends ? SentenceGap::wrappedLine : breaks > 1 ? SentenceGap::lines : SentenceGap::line;
        else if (spaces > 0)
            gap_ = spaces > 1 ? SentenceGap::wideSpace : SentenceGap::space;
        return i;
    }

    void startSentence(std::size_t i) {
        tokens_[i].startsSentence = true;
        sentence_ = {};
        sentence_.add(spelling(i), shapeOfToken(spelling(i), tokens_[i].kind));
    }

    bool endsBetween(std::size_t last, std::size_t next) {
        if (gap_ >= SentenceGap::wrappedLine) sentence_.lineTokens = 0;
        const SentencePlace place{last, next, endingBefore(last), gap_};
        if (!isCandidate(place)) return false;
        sentenceFeatures(text_, tokens_, place, sentence_, style_, learned_, features_);
        return learned_.sentenceEnds->decide(tokens_[next].range.start - start_, features_.view());
    }

    // `last`, or the terminal mark before the closing marks that it is the last of.
    std::size_t endingBefore(std::size_t last) const {
        std::size_t at = last;
        for (int i = 0; i < mostClosingMarks && at > 0; ++i, --at) {
            if (tokens_[at].kind != TokenKind::punctuation || !closesAQuotation(firstOf(at))) break;
            if (isBlank(tokens_[at - 1])) return last;
        }
        return isEnding(at) ? at : last;
    }

    bool isEnding(std::size_t i) const {
        const std::string_view token = spelling(i);
        if (tokens_[i].kind == TokenKind::word) return token.size() > 1 && token.back() == '.';
        return isTerminal(firstOf(i));
    }

    bool isCandidate(const SentencePlace& place) const {
        if (gap_ >= SentenceGap::wideSpace) return true;
        const bool marked = tokens_[place.last].kind != TokenKind::word || isEnding(place.ending);
        const bool nextIsWord = tokens_[place.next].kind == TokenKind::word;
        if (gap_ == SentenceGap::none) {
            if (!isEnding(place.ending) || tokens_[place.ending].kind == TokenKind::word) return false;
            const char32_t mark = firstOf(place.ending);
            return isWide(mark) ||
                   (nextIsWord && mark != ':' && mark != ';' && isUpperCase(firstOf(place.next)));
        }
        if (marked) return tokens_[place.last].kind != TokenKind::punctuation || firstOf(place.last) != ',';
        return !nextIsWord || !isLowerCase(firstOf(place.next));
    }

    std::string_view text_;
    std::span<Token> tokens_;
    const LearnedSegmentation& learned_;
    std::size_t start_;
    std::uint32_t style_;
    LineBreaks& lineBreaks_;
    std::size_t lineBreak_ = 0;
    SentenceGap gap_ = SentenceGap::none;
    OpenSentence sentence_;
    FeatureList features_;
};

} // namespace

void reviseSentences(std::string_view text, std::span<Token> tokens, LineBreaks& lineBreaks,
                     const LearnedSegmentation& learned) {
    if (!tokens.empty()) LearnedMarker(text, tokens, lineBreaks, learned).run();
}

} // namespace lexiform::linguistics
