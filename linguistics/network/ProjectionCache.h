#pragma once

#include "linguistics/network/NetworkKernels.h"
#include "linguistics/network/NetworkModel.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// What the words met so far add to the gates around them, worked out once for each. When it is full it keeps
/// the words that come again and again, so its memory is bounded. What it answers depends on the word only.
class ProjectionCache {
public:
    ProjectionCache(const NetworkModel& model, const NetworkKernels& kernels);

    /// The index of `word` in the cache. Indices stay good until `makeRoom`.
    [[nodiscard]] std::uint32_t indexOf(std::string_view word);
    /// What stands before and after a sentence.
    [[nodiscard]] static constexpr std::uint32_t boundary() { return 0; }

    /// What the word adds to the gates of the word after it, to its own, and to those of the word before it:
    /// `projectionSize` numbers, `networkGates` for each. Lasts until the next call of another function.
    [[nodiscard]] const std::int16_t* projectionOf(std::uint32_t index) const {
        return projections_.data() + index * projectionSize;
    }

    [[nodiscard]] const NetworkEntry& entryOf(std::uint32_t index) const { return words_[index].entry; }

    /// Forgets words if another `count`, 4096 at most, might not fit.
    void makeRoom(std::size_t count);

private:
    struct Word {
        std::uint64_t hash = 0;
        NetworkEntry entry;
        std::uint32_t uses = 0; ///< since the cache was last full
    };

    void keepUsed();
    void fillSlots(std::size_t count);
    void append(const Word& word, const NetworkModel::RowSum& sum);

    const NetworkModel& model_;
    const NetworkKernels& kernels_;
    std::vector<std::int16_t> projections_;
    std::vector<Word> words_;
    std::vector<std::uint32_t> slots_; ///< indices, open addressing; 0 is free
};

} // namespace lexiform::linguistics
