#include "linguistics/tagging/WordCache.h"

namespace lexiform::linguistics {

namespace {

// About the distinct words of a long novel; six megabytes.
constexpr std::size_t mostWords = std::size_t{16} * 1024;
constexpr std::size_t fewestSlots = 256;

} // namespace

WordCache::WordCache(const LinearModel& model) : model_(model) {
    clear();
}

void WordCache::clear() {
    words_.clear();
    words_.push_back(scored(boundaryTraits()));
    slots_.assign(fewestSlots, 0);
}

void WordCache::makeRoom(std::size_t count) {
    if (words_.size() > 1 && words_.size() + count > mostWords) clear();
}

std::uint32_t WordCache::indexOf(std::string_view word) {
    // Words are told apart by 64 bits of hash: two that share them are not to be met.
    const std::uint64_t hash = hashOf(word);
    std::size_t slot = hash & (slots_.size() - 1);
    for (; slots_[slot] != 0; slot = (slot + 1) & (slots_.size() - 1))
        if (words_[slots_[slot]].traits.exact == hash) return slots_[slot];
    const auto index = static_cast<std::uint32_t>(words_.size());
    WordTraits traits = traitsOf(word);
    traits.entry = model_.find(traits.normal);
    words_.push_back(scored(traits));
    slots_[slot] = index;
    if (words_.size() * 2 > slots_.size()) grow();
    return index;
}

void WordCache::grow() {
    std::vector<std::uint32_t> larger(slots_.size() * 2, 0);
    for (std::uint32_t index = 1; index < words_.size(); ++index) {
        std::size_t slot = words_[index].traits.exact & (larger.size() - 1);
        while (larger[slot] != 0)
            slot = (slot + 1) & (larger.size() - 1);
        larger[slot] = index;
    }
    slots_ = std::move(larger);
}

ScoredWord WordCache::scored(WordTraits traits) const {
    ScoredWord word;
    word.traits = traits;
    for (int offset = -contextReach; offset <= contextReach; ++offset) {
        std::int16_t* scores = word.scores[static_cast<unsigned>(offset + contextReach)].data();
        forEachWordFeature(traits, offset, [&](std::uint64_t feature) { model_.add(feature, scores); });
    }
    return word;
}

} // namespace lexiform::linguistics
