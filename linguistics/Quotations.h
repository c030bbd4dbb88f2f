#pragma once

#include "linguistics/text/Analysis.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Tokens of a paragraph that follow each other, by their indices.
struct TokenStretch {
    std::size_t first = 0;
    std::size_t end = 0; ///< one past the last

    [[nodiscard]] std::span<const Token> of(std::span<const Token> paragraph) const {
        return paragraph.subspan(first, end - first);
    }
};

/// The quotations of a sentence that are long enough to be in a language of their own, and what stands
/// around them.
class Quotations {
public:
    /// Looks at the tokens of `sentence`; their ranges count from the start of `text`. Quotations of fewer
    /// than `shortest` bytes are left where they stand.
    void find(std::string_view text, std::span<const Token> paragraph, TokenStretch sentence,
              std::size_t shortest);

    /// What stands between the marks of each, in order.
    [[nodiscard]] std::span<const TokenStretch> quoted() const { return quoted_; }
    /// The rest of the sentence, in order, the marks with it; all of it where nothing is quoted.
    [[nodiscard]] std::span<const TokenStretch> around() const { return around_; }

private:
    std::vector<TokenStretch> quoted_;
    std::vector<TokenStretch> around_;
    std::vector<std::string_view> missing_; ///< marks that do not come in the rest of the sentence
};

} // namespace lexiform::linguistics
