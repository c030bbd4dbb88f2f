#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// Sorts the words of a large text into classes of words that occur in like contexts, such that a
/// bigram model over the classes predicts the text as well as it can (Martin, Liermann and Ney 1998,
/// "Algorithms for bigram and trigram word clustering"; the exchange algorithm).
class WordClusters {
public:
    /// Words seen less than `least` times are left out.
    WordClusters(std::size_t clusters, std::size_t least) : clusters_(clusters), least_(least) {}

    /// Adds a word of the running text, in normal form; an empty one parts sentences.
    void add(std::string_view word);

    /// The cluster of each word, from 1. Passes over all words `passes` times.
    [[nodiscard]] std::map<std::string, std::uint16_t> build(int passes);

private:
    std::size_t clusters_;
    std::size_t least_;
    std::map<std::string, std::uint32_t, std::less<>> ids_;
    std::vector<std::uint32_t> text_;
};

} // namespace lexiform::train
