#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lexiform::train {

/// Counts how the words of running text are written: which have a full stop after them inside sentences,
/// and which are written small (after Kiss and Strunk 2006, "Unsupervised multilingual sentence boundary
/// detection").
class WordCounts {
public:
    /// Counts the words of `text`; a word is what white space parts, without the marks around it.
    void read(std::string_view text);

    /// The hashes of words that a full stop belongs to, ascending.
    [[nodiscard]] std::vector<std::uint32_t> abbreviations() const;
    /// The hashes of the `most` most frequent words that are mostly written small, ascending.
    [[nodiscard]] std::vector<std::uint32_t> commonWords(std::size_t most) const;

private:
    struct Count {
        std::uint32_t all = 0, stopped = 0, stoppedInside = 0, small = 0;
    };
    void count(std::string_view chunk, std::string_view next);

    std::unordered_map<std::string, Count> counts_; ///< by the lower-case spelling
};

} // namespace lexiform::train
