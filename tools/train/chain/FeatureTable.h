#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lexiform::train {

/// Numbers the features that occur often enough to be worth a weight. First count all of them, then
/// `number`, then ask.
class FeatureTable {
public:
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    FeatureTable();

    void count(std::uint64_t feature);
    /// Numbers the features counted at least `least` times; forgets the others.
    void number(std::uint32_t least);

    /// The number of `feature`, from 0; `none` if it has none.
    [[nodiscard]] std::uint32_t find(std::uint64_t feature) const;
    /// The numbered features, by number.
    [[nodiscard]] const std::vector<std::uint64_t>& features() const { return features_; }
    /// How often each numbered feature was counted.
    [[nodiscard]] const std::vector<std::uint32_t>& counts() const { return counts_; }

private:
    struct Slot {
        std::uint64_t feature = 0;
        std::uint32_t value = 0; ///< the count, later the number; 0 is a free slot while counting
        bool used = false;
    };

    [[nodiscard]] std::size_t slotOf(std::uint64_t feature) const;
    void grow();

    std::vector<Slot> slots_;
    std::size_t used_ = 0;
    std::vector<std::uint64_t> features_;
    std::vector<std::uint32_t> counts_;
};

} // namespace lexiform::train
