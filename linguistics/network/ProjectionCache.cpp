#include "linguistics/network/ProjectionCache.h"

#include "linguistics/text/Hash.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// The frequent words of a novel and more; 28 megabytes when full.
constexpr std::size_t mostWords = std::size_t{12} * 1024;
// Words met more often than this are kept when the cache is full, so long as they leave room.
constexpr std::uint32_t seldom = 2;
constexpr std::size_t mostKept = mostWords / 2;
constexpr std::size_t firstSlots = 256;

} // namespace

ProjectionCache::ProjectionCache(const NetworkModel& model, const NetworkKernels& kernels)
    : model_(model), kernels_(kernels) {
    // Room without memory: what is never written takes none, and what is written never moves.
    projections_.reserve(mostWords * projectionSize);
    append({}, model_.boundarySum());
    fillSlots(firstSlots);
}

void ProjectionCache::makeRoom(std::size_t count) {
    if (words_.size() + count > mostWords) keepUsed();
}

void ProjectionCache::keepUsed() {
    std::size_t kept = 1; // the boundary stays
    for (std::size_t i = 1; i < words_.size() && kept < mostKept; ++i) {
        if (words_[i].uses <= seldom) continue;
        std::copy_n(projections_.begin() + static_cast<std::ptrdiff_t>(i * projectionSize), projectionSize,
                    projections_.begin() + static_cast<std::ptrdiff_t>(kept * projectionSize));
        words_[kept] = words_[i];
        words_[kept++].uses = 0;
    }
    words_.resize(kept);
    projections_.resize(kept * projectionSize);
    fillSlots(slots_.size());
}

void ProjectionCache::append(const Word& word, const NetworkModel::RowSum& sum) {
    words_.push_back(word);
    const std::size_t start = projections_.size();
    projections_.resize(start + projectionSize);
    kernels_.project(sum.data(), model_.gateWeights(), model_.gateBias(), model_.gateShift(),
                     projections_.data() + start);
}

std::uint32_t ProjectionCache::indexOf(std::string_view word) {
    // Words are told apart by 64 bits of hash: two that share them are not to be met.
    const std::uint64_t hash = hashOf(word);
    std::size_t slot = hash & (slots_.size() - 1);
    for (; slots_[slot] != 0; slot = (slot + 1) & (slots_.size() - 1)) {
        Word& known = words_[slots_[slot]];
        if (known.hash != hash) continue;
        ++known.uses;
        return slots_[slot];
    }
    const auto index = static_cast<std::uint32_t>(words_.size());
    const NetworkEntry entry = model_.find(hashOf(normalForm(word)));
    append({hash, entry, 1}, model_.sumOf(word, entry));
    slots_[slot] = index;
    if (words_.size() * 2 > slots_.size()) fillSlots(slots_.size() * 2);
    return index;
}

void ProjectionCache::fillSlots(std::size_t count) {
    slots_.assign(count, 0);
    for (std::uint32_t index = 1; index < words_.size(); ++index) {
        std::size_t slot = words_[index].hash & (count - 1);
        while (slots_[slot] != 0)
            slot = (slot + 1) & (count - 1);
        slots_[slot] = index;
    }
}

} // namespace lexiform::linguistics
