#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace lexiform {

/// Finds strings in a list of distinct ones, which its owner keeps: one table of eight bytes an entry, so
/// that a string that is looked for often costs two steps through memory.
class StringIndex {
public:
    /// Where a string stands in the list, from 0.
    using Place = std::uint32_t;

    /// The place of `string`, if it stands in the list; `at(place)` gives the string at a place.
    template <typename StringAt>
    [[nodiscard]] std::optional<Place> find(std::string_view string, const StringAt& at) const {
        if (slots_.empty()) return std::nullopt;
        const Slot& slot = slots_[slotOf(string, hashOf(string), at)];
        return slot.place == none ? std::nullopt : std::optional(slot.place);
    }

    /// The same; a string that is not in the list is noted as its next, and the caller adds it there. A list
    /// of four thousand million strings stops the program.
    template <typename StringAt>
    [[nodiscard]] Place findOrAdd(std::string_view string, const StringAt& at) {
        if (size_ * 2 >= slots_.size()) grow();
        const std::uint32_t hash = hashOf(string);
        Slot& slot = slots_[slotOf(string, hash, at)];
        if (slot.place == none) slot = {hash, added()};
        return slot.place;
    }

    void clear() { *this = StringIndex(); }

private:
    static constexpr Place none = 0xFFFFFFFF;

    struct Slot {
        std::uint32_t hash = 0;
        Place place = none;
    };

    [[nodiscard]] static std::uint32_t hashOf(std::string_view string) {
        const std::uint64_t hash = std::hash<std::string_view>{}(string);
        return static_cast<std::uint32_t>(hash ^ hash >> 32);
    }

    /// The slot of a string, or the free one that it may have.
    template <typename StringAt>
    [[nodiscard]] std::size_t slotOf(std::string_view string, std::uint32_t hash, const StringAt& at) const {
        std::size_t i = hash & (slots_.size() - 1);
        while (slots_[i].place != none && (slots_[i].hash != hash || at(slots_[i].place) != string))
            i = (i + 1) & (slots_.size() - 1);
        return i;
    }

    [[nodiscard]] Place added();
    void grow();

    std::vector<Slot> slots_; ///< open addressing; a power of two, half of them free
    std::size_t size_ = 0;
};

} // namespace lexiform
