#include "linguistics/Quotations.h"

#include <algorithm>
#include <array>

namespace lexiform::linguistics {

namespace {

/// What closes the quotation that `mark` opens; empty if it opens none.
std::string_view closingOf(std::string_view mark) {
    struct Pair {
        std::string_view opening, closing;
    };
    static constexpr std::array pairs = {Pair{"\"", "\""}, Pair{"“", "”"}, Pair{"„", "“"},
                                         Pair{"«", "»"},   Pair{"»", "«"}, Pair{"「", "」"}};
    for (const Pair& pair : pairs)
        if (mark == pair.opening) return pair.closing;
    return {};
}

/// The index of the first token from `from` on that is spelt `spelling`; `end` if there is none.
std::size_t findSpelt(std::string_view spelling, std::string_view text, std::span<const Token> tokens,
                      std::size_t from, std::size_t end) {
    while (from < end && substring(text, tokens[from].range) != spelling)
        ++from;
    return from;
}

} // namespace

void Quotations::find(std::string_view text, std::span<const Token> paragraph, TokenStretch sentence,
                      std::size_t shortest) {
    quoted_.clear();
    around_.clear();
    missing_.clear();
    std::size_t outside = sentence.first;
    for (std::size_t i = sentence.first; i < sentence.end; ++i) {
        if (paragraph[i].kind != TokenKind::punctuation) continue;
        const std::string_view closing = closingOf(substring(text, paragraph[i].range));
        if (closing.empty() || std::find(missing_.begin(), missing_.end(), closing) != missing_.end())
            continue;
        const std::size_t close = findSpelt(closing, text, paragraph, i + 1, sentence.end);
        if (close == sentence.end) {
            missing_.push_back(closing);
            continue;
        }
        if (paragraph[close].range.start - paragraph[i].range.end() >= shortest) {
            quoted_.push_back({i + 1, close});
            around_.push_back({outside, i + 1});
            outside = close;
        }
        i = close;
    }
    around_.push_back({outside, sentence.end});
}

} // namespace lexiform::linguistics
