#include "tools/train/chain/FeatureTable.h"

#include <utility>

namespace lexiform::train {

namespace {

constexpr std::size_t firstSize = std::size_t{1} << 20;

} // namespace

FeatureTable::FeatureTable() : slots_(firstSize) {}

std::size_t FeatureTable::slotOf(std::uint64_t feature) const {
    std::size_t slot = feature & (slots_.size() - 1);
    while (slots_[slot].used && slots_[slot].feature != feature)
        slot = (slot + 1) & (slots_.size() - 1);
    return slot;
}

void FeatureTable::count(std::uint64_t feature) {
    Slot& slot = slots_[slotOf(feature)];
    ++slot.value;
    if (slot.used) return;
    slot.used = true;
    slot.feature = feature;
    if (++used_ * 2 > slots_.size()) grow();
}

void FeatureTable::grow() {
    const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
    for (const Slot& slot : old)
        if (slot.used) slots_[slotOf(slot.feature)] = slot;
}

void FeatureTable::number(std::uint32_t least) {
    for (Slot& slot : slots_) {
        const std::uint32_t count = slot.used ? slot.value : 0;
        slot.value = none;
        if (count < least) continue;
        slot.value = static_cast<std::uint32_t>(features_.size());
        features_.push_back(slot.feature);
        counts_.push_back(count);
    }
}

std::uint32_t FeatureTable::find(std::uint64_t feature) const {
    const Slot& slot = slots_[slotOf(feature)];
    return slot.used ? slot.value : none;
}

} // namespace lexiform::train
