#pragma once

#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/segmentation/ParagraphSplitter.h"
#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"

#include <string>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// The tokens of a text in a language, white space included, with their sentence starts.
inline std::vector<Token> tokensOf(std::string_view text, std::string_view language,
                                   const LearnedSegmentation* learned = nullptr) {
    Tokeniser tokeniser;
    std::vector<Token> all, tokens;
    for (std::size_t start = 0; start < text.size();) {
        const TextRange range = paragraphAt(text, start);
        tokens.clear();
        tokeniser.tokenise(substring(text, range), start, language, learned, tokens);
        markSentences(text, tokens, learned);
        all.insert(all.end(), tokens.begin(), tokens.end());
        start = range.end();
    }
    return all;
}

/// The tokens that are no white space joined by bars, sentences by double bars.
inline std::string cutText(std::string_view text, std::string_view language,
                           const LearnedSegmentation* learned = nullptr) {
    std::string result;
    for (const Token& token : tokensOf(text, language, learned)) {
        if (isBlank(token)) continue;
        if (!result.empty()) result += token.startsSentence ? " || " : "|";
        result += substring(text, token.range);
    }
    return result;
}

/// Whether tokens cover a text without gaps or overlaps, none of them empty.
inline bool covers(const std::vector<Token>& tokens, std::string_view text) {
    std::size_t end = 0;
    for (const Token& token : tokens) {
        if (token.range.start != end || token.range.length == 0) return false;
        end = token.range.end();
    }
    return end == text.size();
}

/// Decides by chance, but alike for the same question.
class ArbitraryDecider final : public Decider {
public:
    explicit ArbitraryDecider(std::uint32_t seed) : seed_(seed) {}
    [[nodiscard]] bool decide(std::size_t, std::span<const std::uint32_t> features) const override {
        return ((features.back() ^ seed_) * 0x9E3779B9U >> 31) != 0;
    }

private:
    std::uint32_t seed_;
};

inline constexpr std::string_view trainedLanguages[] = {"en", "de", "fr", "es", "it", "pt", "ru",
                                                        "tr", "nl", "da", "sv", "nb", "fi", "ro",
                                                        "ca", "id", "zh", "ko", "vi"};

} // namespace lexiform::linguistics
