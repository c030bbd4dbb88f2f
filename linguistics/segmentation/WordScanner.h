#pragma once

#include "linguistics/segmentation/Conventions.h"
#include "linguistics/text/Characters.h"

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

/// Finds where a word of letters and digits ends: decides which marks inside it hold it together
/// ("O'Neill", "U.S.", "1,000", "non-fiction", "10:30", "AT&T").
class WordScanner {
public:
    /// Reads `paragraph` and no further. Both must outlive the scanner.
    WordScanner(const Characters& characters, std::string_view paragraph, Conventions conventions)
        : characters_(characters), text_(paragraph), conventions_(conventions) {}

    /// The byte after the word that starts at `start` with a letter or digit, no further than `limit`,
    /// where white space or the paragraph's end stands. Looks a bounded stretch ahead.
    [[nodiscard]] std::size_t endOfWord(std::size_t start, std::size_t limit);

private:
    [[nodiscard]] std::size_t endOfRun(std::size_t at) const;
    [[nodiscard]] std::size_t connectorAt(std::size_t at) const;
    [[nodiscard]] bool elidesBefore(std::size_t at) const;
    [[nodiscard]] bool letterAt(std::size_t at) const;
    [[nodiscard]] char byteAt(std::size_t at) const { return at < limit_ ? text_[at] : '\0'; }
    [[nodiscard]] char charBefore(std::size_t at) const { return text_[at - 1]; }
    [[nodiscard]] std::size_t digitsFrom(std::size_t at) const;
    [[nodiscard]] std::size_t digitsBefore(std::size_t at) const;
    [[nodiscard]] std::size_t alnumsFrom(std::size_t at) const;

    [[nodiscard]] bool joinsMark(char mark, std::size_t at) const;
    [[nodiscard]] bool joinsFullStop(std::size_t at) const;
    [[nodiscard]] bool joinsNetworkName(std::size_t at) const;
    [[nodiscard]] bool joinsComma(std::size_t at) const;
    [[nodiscard]] bool joinsHyphen(std::size_t at) const;
    [[nodiscard]] bool keepsEnglishFullStop(std::string_view word, std::size_t end) const;
    [[nodiscard]] bool joinsHyphenatedFigures(std::size_t at) const;
    [[nodiscard]] bool joinsAmpersand(std::size_t at) const;
    [[nodiscard]] bool keepsFullStop(std::size_t end) const;
    [[nodiscard]] char characterAfterSpace(std::size_t at) const;

    const Characters& characters_;
    std::string_view text_;
    Conventions conventions_;
    std::size_t start_ = 0;
    std::size_t segment_ = 0; ///< where the last run of letters and digits starts
    std::size_t limit_ = 0;
};

} // namespace lexiform::linguistics
