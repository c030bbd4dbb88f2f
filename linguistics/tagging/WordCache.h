#pragma once

#include "linguistics/tagging/Features.h"
#include "linguistics/tagging/LinearModel.h"
#include "linguistics/tagging/WordTraits.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// What a linear model says of a word by itself, worked out once: its traits, and for each place that
/// it may have beside the word being labelled the sum of its features' weights.
struct ScoredWord {
    using Scores = std::array<std::int16_t, scoreCount>;

    WordTraits traits;
    std::array<Scores, neighbourCount + 1> scores{}; ///< by place, from `contextReach` before
};

/// The scored words met so far; starts afresh when it is full, so its memory is bounded. What it
/// answers depends on the word only.
class WordCache {
public:
    explicit WordCache(const LinearModel& model);

    /// The index of `word` in the cache. Indices stay good until `makeRoom`.
    [[nodiscard]] std::uint32_t indexOf(std::string_view word);
    /// What stands before and after a sentence.
    [[nodiscard]] static constexpr std::uint32_t boundary() { return 0; }
    [[nodiscard]] const ScoredWord& operator[](std::uint32_t index) const { return words_[index]; }

    /// Forgets all words if another `count` might not fit.
    void makeRoom(std::size_t count);

private:
    void clear();
    void grow();
    [[nodiscard]] ScoredWord scored(WordTraits traits) const;

    const LinearModel& model_;
    std::vector<ScoredWord> words_;
    std::vector<std::uint32_t> slots_; ///< indices into `words_`, open addressing; 0 is free
};

} // namespace lexiform::linguistics
