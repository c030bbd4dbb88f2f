#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lexiform::cli {

/// What a writer made of a stretch of text. Sentences are numbered through all texts, but how many came
/// before is not known while several stretches are written at once: their numbers are put in at last.
class Piece {
public:
    /// Everything but the numbers; to be appended to.
    std::string text;

    void startSentence() { ++sentences_; }
    /// Appends the number of the sentence that was started last.
    void appendSentenceNumber() { numbers_.push_back({text.size(), sentences_}); }

    [[nodiscard]] std::size_t sentences() const { return sentences_; }
    /// Appends all of it to `out`; `before` sentences came before.
    void appendTo(std::string& out, std::size_t before) const;

private:
    struct Number {
        std::size_t place; ///< in `text`
        std::size_t value;
    };

    std::size_t sentences_ = 0;
    std::vector<Number> numbers_;
};

} // namespace lexiform::cli
