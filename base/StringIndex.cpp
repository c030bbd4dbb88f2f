#include "base/StringIndex.h"

#include "base/fatalError.h"

#include <algorithm>

namespace lexiform {

StringIndex::Place StringIndex::added() {
    // The largest place stands for none, here and with whoever keeps places.
    if (size_ >= none) fatalError("a text has too many distinct words");
    return static_cast<Place>(size_++);
}

void StringIndex::grow() {
    constexpr std::size_t fewest = 16;
    std::vector<Slot> old(std::max(slots_.size() * 2, fewest));
    old.swap(slots_);
    for (const Slot& slot : old) {
        if (slot.place == none) continue;
        std::size_t i = slot.hash & (slots_.size() - 1);
        while (slots_[i].place != none)
            i = (i + 1) & (slots_.size() - 1);
        slots_[i] = slot;
    }
}

} // namespace lexiform
