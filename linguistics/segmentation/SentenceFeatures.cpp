#include "linguistics/segmentation/SentenceFeatures.h"

#include "linguistics/segmentation/ChunkAtoms.h"
#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/text/AsciiText.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// Of longer tokens only the start is read.
constexpr std::size_t longestSpelling = 32;

constexpr std::uint32_t noToken = 7;

std::uint32_t bucketOf(std::uint32_t count) {
    if (count <= 4) return count;
    if (count <= 6) return 5;
    if (count <= 10) return 6;
    if (count <= 20) return 7;
    return count <= 40 ? 8 : 9;
}

/// A token as the features see it; all zero but for its shape where there is none.
struct Word {
    std::uint32_t shape = noToken;
    std::uint32_t hash = 0;
    std::uint32_t suffix = 0;
    std::uint32_t length = 0;
    bool isAbbreviation = false; ///< it has a full stop of its own, or mostly one after it
    bool isCommon = false;
};

/// Reads the tokens around a place.
class PlaceReader {
public:
    PlaceReader(std::string_view text, std::span<const Token> tokens, const LearnedSegmentation& learned)
        : text_(text), tokens_(tokens), learned_(learned) {}

    std::size_t before(std::size_t i) const {
        while (i > 0 && isBlank(tokens_[i - 1]))
            --i;
        return i == 0 ? tokens_.size() : i - 1;
    }
    std::size_t after(std::size_t i) const {
        ++i;
        while (i < tokens_.size() && isBlank(tokens_[i]))
            ++i;
        return i;
    }

    Word word(std::size_t i) const {
        Word word;
        if (i >= tokens_.size()) return word;
        const std::string_view spelling = substring(text_, tokens_[i].range).substr(0, longestSpelling);
        word.shape = shapeOfToken(spelling, tokens_[i].kind);
        word.length = static_cast<std::uint32_t>(std::min<std::size_t>(spelling.size(), 8));
        word.hash = tokens_[i].kind == TokenKind::word && isAsciiDigit(spelling[0])
                        ? word.shape
                        : lowerCasedHash(spelling);
        if (tokens_[i].kind != TokenKind::word) return word;
        word.suffix =
            lowerCasedHash(spelling.substr(spelling.size() - std::min<std::size_t>(3, spelling.size())));
        word.isAbbreviation = learned_.abbreviations.holds(
            stopped(spelling) ? lowerCasedHash(withoutStop(spelling)) : word.hash);
        word.isCommon = learned_.commonWords.holds(word.hash);
        return word;
    }

private:
    static bool stopped(std::string_view spelling) { return spelling.size() > 1 && spelling.back() == '.'; }
    static std::string_view withoutStop(std::string_view spelling) {
        return spelling.substr(0, spelling.size() - 1);
    }

    std::string_view text_;
    std::span<const Token> tokens_;
    const LearnedSegmentation& learned_;
};

bool isMark(const Token& token) {
    return token.kind != TokenKind::word;
}

} // namespace

std::uint32_t shapeOfToken(std::string_view spelling, TokenKind kind) {
    const CodePoint first = codePointAt(spelling, 0);
    const bool stopped = spelling.size() > 1 && spelling.back() == '.';
    if (kind != TokenKind::word) {
        const bool pictograph = first.value >= 0x2600 && (first.value < 0x3000 || first.value >= 0x1F000);
        return (pictograph ? 0x1F600U : static_cast<std::uint32_t>(first.value)) * 4 +
               static_cast<std::uint32_t>(std::min<std::size_t>(spelling.size() / first.length, 3));
    }
    if (isAsciiDigit(spelling[0]))
        return 0x20000000U + static_cast<std::uint32_t>(std::min<std::size_t>(spelling.size(), 5)) * 2 +
               stopped;
    const std::uint32_t inner = stopped && spelling.find('.') + 1 < spelling.size() ? 0x100000U : 0U;
    return shapeOfLetters(spelling) * 2 + stopped + inner;
}

void OpenSentence::add(std::string_view token, std::uint32_t shape) {
    if (tokens == 0) first = shape;
    ++tokens;
    ++lineTokens;
    const char32_t mark = codePointAt(token, 0).value;
    if (mark == '"') inQuotes = !inQuotes;
    if (mark == 0x201C || mark == 0x201E || mark == 0xAB) inQuotes = true;
    if (mark == 0x201D || mark == 0xBB) inQuotes = false;
    if (mark == '(' || mark == '[') ++brackets;
    if ((mark == ')' || mark == ']') && brackets > 0) --brackets;
}

void sentenceFeatures(std::string_view text, std::span<const Token> tokens, const SentencePlace& place,
                      const OpenSentence& sentence, std::uint32_t style, const LearnedSegmentation& learned,
                      FeatureList& features) {
    const PlaceReader reader(text, tokens, learned);
    const bool marked = isMark(tokens[place.ending]);
    const Word mark = marked ? reader.word(place.ending) : Word{};
    const std::size_t leftAt = marked ? reader.before(place.ending) : place.ending;
    const Word left = reader.word(leftAt);
    const Word beforeLeft = leftAt < tokens.size() ? reader.word(reader.before(leftAt)) : Word{};
    const Word next = reader.word(place.next);
    const std::size_t afterAt = reader.after(place.next);
    const Word afterNext = reader.word(afterAt);
    const auto gap = static_cast<std::uint32_t>(place.gap);
    const std::uint32_t closing = place.last == place.ending ? 0 : reader.word(place.last).shape;
    // What ends the sentence and how: the mark, or the full stop of an abbreviation.
    const std::uint32_t how = marked ? mark.shape : 0x70000000U + (left.shape & 1U);
    const std::uint32_t length = bucketOf(sentence.tokens), line = bucketOf(sentence.lineTokens);
    const std::uint32_t inside = (sentence.inQuotes ? 1U : 0U) + (sentence.brackets > 0 ? 2U : 0U);
    const std::uint32_t known = (left.isAbbreviation ? 1U : 0U) + (next.isCommon ? 2U : 0U);

    const std::uint32_t rule = tokens[place.next].startsSentence ? 1 : 0;

    features.clear();
    features.add(ruleFeature, rule);
    features.add(0, rule, gap);
    features.add(26, how, gap, style);
    features.add(27, how, rule, next.shape, style);
    features.add(28, style, how, left.shape, next.shape);
    features.add(29, rule, how, gap);
    features.add(30, rule, next.shape, left.shape);
    features.add(31, style, next.hash, how);
    features.add(1, how, gap, next.shape);
    features.add(2, how, gap, left.hash);
    features.add(3, how, left.shape, next.shape);
    features.add(4, how, gap, next.hash);
    features.add(5, how, left.shape, beforeLeft.shape, gap);
    features.add(6, left.hash, next.hash);
    features.add(7, how, closing, next.shape, afterNext.shape);
    features.add(8, how, gap, length);
    features.add(9, how, length, next.shape);
    features.add(10, how, known, next.shape, gap);
    features.add(11, how, inside, closing, next.shape);
    features.add(12, next.hash, afterNext.hash, how);
    features.add(13, how, gap, next.shape, afterNext.shape);
    features.add(14, how, left.length, next.shape);
    features.add(15, how, gap, line, next.shape);
    features.add(16, how, beforeLeft.hash, left.hash);
    features.add(17, how, left.suffix, next.shape);
    features.add(18, how, inside, gap, next.hash);
    features.add(19, how, next.isCommon, next.shape, left.shape);
    features.add(20, left.hash, next.shape, how, closing);
    features.add(21, gap, sentence.first, next.shape, how);
    features.add(22, gap, line, length, how);
    features.add(23, how, next.hash, left.shape);
    features.add(24, how, known, left.shape, next.shape);
    features.add(25, how, afterNext.isCommon, next.shape, afterNext.shape);
}

} // namespace lexiform::linguistics
