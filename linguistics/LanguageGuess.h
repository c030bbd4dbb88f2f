#pragma once

#include "linguistics/LexiconEntry.h"

#include <cstddef>

namespace lexiform::linguistics {

/// Tells from how often its function words occur whether a stretch of text is in the language of a
/// lexicon. Function words make up a third of running text in their own language; those that
/// neighbouring languages share do not count.
class LanguageGuess {
public:
    enum class Answer {
        yes,
        unclear, ///< too little to tell, or a mixture
        no,
    };

    /// Counts a word written in the language's script.
    void add(LexiconEntry entry);
    /// Whether enough words have been counted for more of them to change little.
    [[nodiscard]] bool hasEnough() const { return words_ >= 200; }
    [[nodiscard]] Answer answer() const;

private:
    std::size_t words_ = 0;
    std::size_t functionWords_ = 0;
    std::size_t unknown_ = 0;
};

} // namespace lexiform::linguistics
