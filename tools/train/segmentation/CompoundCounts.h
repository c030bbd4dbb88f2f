#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lexiform::train {

/// Counts which syllables stand side by side in running text, to find those that make one word (after
/// Church and Hanks 1990, "Word association norms, mutual information, and lexicography").
class CompoundCounts {
public:
    /// Counts the syllables of `text`: what white space parts, where no mark stands between them.
    void read(std::string_view text);

    /// The `pairHash`es, ascending, of at most `most` pairs, those first that are met most often together
    /// for how often each is met; each at least `leastRatio` times as often as chance would have it.
    [[nodiscard]] std::vector<std::uint32_t> pairs(std::size_t most, double leastRatio) const;

private:
    std::unordered_map<std::uint32_t, std::uint32_t> syllables_;
    std::unordered_map<std::uint64_t, std::uint32_t> pairs_; ///< by the hashes of both
    double all_ = 0;
};

} // namespace lexiform::train
