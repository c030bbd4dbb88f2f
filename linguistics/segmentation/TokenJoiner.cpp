#include "linguistics/segmentation/TokenJoiner.h"

#include "linguistics/segmentation/ChunkAtoms.h"
#include "linguistics/segmentation/FeatureList.h"
#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/text/AsciiText.h"

namespace lexiform::linguistics {

namespace {

// Words of more syllables are hardly ever one token.
constexpr std::uint32_t mostSyllables = 8;

/// Walks the tokens once and writes them back, joined.
class Joiner {
public:
    Joiner(std::string_view paragraph, std::size_t offset, Conventions conventions,
           const LearnedSegmentation* learned, std::vector<Token>& tokens)
        : paragraph_(paragraph), offset_(offset), conventions_(conventions), learned_(learned),
          tokens_(tokens) {}

    void run(std::size_t first) {
        std::size_t kept = first;
        syllables_ = 1;
        for (std::size_t i = first; i < tokens_.size(); ++i) {
            if (kept > first && !isBlank(tokens_[kept - 1]) && joins(kept - 1, i)) {
                Token& word = tokens_[kept - 1];
                word.range.length = tokens_[i + 1].range.end() - word.range.start;
                ++i;
                ++syllables_;
                continue;
            }
            if (!isBlank(tokens_[i])) syllables_ = 1;
            moved(i, kept++);
        }
        tokens_.resize(kept);
    }

private:
    // What stands in place of a joined token is read no more, so the tokens ahead stay as they were.
    void moved(std::size_t from, std::size_t to) {
        if (from != to) tokens_[to] = tokens_[from];
    }

    std::string_view spelling(const Token& token) const {
        return paragraph_.substr(token.range.start - offset_, token.range.length);
    }

    bool joins(std::size_t word, std::size_t space) const {
        if (space + 1 >= tokens_.size() || tokens_[space].kind != TokenKind::whitespace) return false;
        const Token& left = tokens_[word];
        const Token& right = tokens_[space + 1];
        if (left.kind != TokenKind::word || right.kind != TokenKind::word) return false;
        if (syllables_ == mostSyllables) return false;
        if (conventions_.groupsBySpaces && groups(left, tokens_[space], right)) return true;
        return learned_ && learned_->spaceJoins && tokens_[space].range.length == 1 &&
               joinsSyllables(left, space);
    }

    bool groups(const Token& left, const Token& space, const Token& right) const {
        const std::string_view number = spelling(left), group = spelling(right), gap = spelling(space);
        if (gap != " " && gap != "\xC2\xA0" && gap != "\xE2\x80\xAF") return false;
        const std::size_t digits = std::min(number.size(), std::size_t{3});
        const auto mayGroup = [](char c) {
            return isAsciiDigit(c) || c == ' ' || static_cast<unsigned char>(c) >= 0x80;
        };
        if (!std::all_of(number.begin(), number.end(), mayGroup)) return false;
        if (syllables_ == 1 && number.size() > digits) return false;
        if (!isAsciiDigit(number[0]) || (syllables_ == 1 && number[0] == '0')) return false;
        const auto isGroup = [&](std::size_t count) {
            return std::all_of(group.begin(), group.begin() + static_cast<std::ptrdiff_t>(count),
                               isAsciiDigit);
        };
        return group.size() >= 3 && isGroup(3) && (group.size() == 3 || group[3] == ',' || group[3] == '.');
    }

    bool joinsSyllables(const Token& word, std::size_t space) const {
        const std::string_view a = lastOf(spelling(word));
        const std::string_view b = spelling(tokens_[space + 1]);
        FeatureList features;
        const std::uint32_t left = lowerCasedHash(a), right = lowerCasedHash(b);
        const std::uint32_t leftShape = shapeOfLetters(a), rightShape = shapeOfLetters(b);
        const std::uint32_t before = previous(word), after = following(space + 1);
        features.add(0, 0);
        features.add(1, leftShape, rightShape, std::min(syllables_, 4U));
        features.add(2, left, right);
        features.add(3, left);
        features.add(4, right);
        features.add(5, before, left, right);
        features.add(6, left, right, after);
        features.add(7, right, after);
        features.add(8, before, left);
        features.add(9, lowerCasedHash(spelling(word)), right);
        features.add(10, std::min(syllables_, 4U), right);
        features.add(11, std::min(syllables_, 4U), left);
        features.add(12, before, right);
        features.add(13, left, after);
        const std::uint32_t here = compound(left, right), earlier = compound(before, left),
                            later = compound(right, after);
        features.add(15, here, earlier, later, std::min(syllables_, 3U));
        features.add(16, here, left);
        features.add(17, here, right);
        features.add(18, here, leftShape, rightShape);
        features.add(19, here, later);
        features.add(20, here, earlier, std::min(syllables_, 3U));
        features.add(14, leftShape, rightShape, before == 0, after == 0);
        return learned_->spaceJoins->decide(tokens_[space].range.start - offset_, features.view());
    }

    // How firmly open text joins two syllables: 0 for not at all.
    std::uint32_t compound(std::uint32_t left, std::uint32_t right) const {
        const std::uint32_t pair = pairHash(left, right);
        return learned_->strongCompounds.holds(pair) ? 2 : learned_->compounds.holds(pair) ? 1 : 0;
    }

    static std::string_view lastOf(std::string_view word) {
        const std::size_t space = word.rfind(' ');
        return space == std::string_view::npos ? word : word.substr(space + 1);
    }

    // The syllable before the last of `word`, or the token before it; 0 where there is none.
    std::uint32_t previous(const Token& word) const {
        const std::size_t last = lastOf(spelling(word)).size();
        std::size_t end = word.range.end() - offset_ - last;
        while (end > 0 && paragraph_[end - 1] == ' ')
            --end;
        std::size_t start = end;
        while (start > 0 && end - start < 24 && static_cast<unsigned char>(paragraph_[start - 1]) > ' ')
            --start;
        return start == end ? 0 : lowerCasedHash(paragraph_.substr(start, end - start));
    }

    std::uint32_t following(std::size_t token) const {
        const std::size_t next =
            token + 1 < tokens_.size() && isBlank(tokens_[token + 1]) ? token + 2 : token + 1;
        return next < tokens_.size() && !isBlank(tokens_[next]) ? lowerCasedHash(spelling(tokens_[next])) : 0;
    }

    std::string_view paragraph_;
    std::size_t offset_;
    Conventions conventions_;
    const LearnedSegmentation* learned_;
    std::vector<Token>& tokens_;
    std::uint32_t syllables_ = 1; ///< of the last word kept
};

} // namespace

void joinOverSpaces(std::string_view paragraph, std::size_t offset, Conventions conventions,
                    const LearnedSegmentation* learned, std::size_t first, std::vector<Token>& tokens) {
    const bool joinsSyllables = learned && learned->spaceJoins;
    if (conventions.groupsBySpaces || joinsSyllables)
        Joiner(paragraph, offset, conventions, learned, tokens).run(first);
}

} // namespace lexiform::linguistics
