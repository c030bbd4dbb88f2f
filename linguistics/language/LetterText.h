#pragma once

#include "linguistics/language/Writing.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace lexiform::linguistics {

/// The words of a text as far as they tell its language: runs of letters in lower case, each between
/// blanks; addresses and handles are left out, and so is all that is no letter.
class LetterText {
public:
    static constexpr std::size_t largestSample = 768;

    /// Reads at most `most` bytes of `text`: of a longer one, pieces of its start, middle and end. Any
    /// bytes may come.
    explicit LetterText(std::string_view text, std::size_t most = largestSample);

    /// " word word ": a blank at either end; empty when there is no letter. A character outside the
    /// basic multilingual plane stands as U+FFFF.
    [[nodiscard]] const std::u16string& words() const { return words_; }

    [[nodiscard]] std::uint32_t letters() const { return letters_; }
    [[nodiscard]] std::uint32_t lettersIn(Writing writing) const {
        return counts_[static_cast<std::size_t>(writing)];
    }

    /// The same words in UTF-8.
    [[nodiscard]] std::string utf8() const;

private:
    void add(std::string_view text);
    void addWords(std::string_view text);
    void endWord();

    std::u16string words_;
    std::size_t wordStart_ = 1; ///< of the word at the end of `words_`
    std::uint32_t letters_ = 0;
    std::array<std::uint32_t, writingCount> counts_{};
};

} // namespace lexiform::linguistics
