#pragma once

#include "base/StringHash.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lexiform {

/// Keeps each distinct string once and gives it a number: a long text has a hundred times fewer
/// distinct words than tokens.
class StringPool {
public:
    using Number = std::uint32_t;

    StringPool() = default;
    // A copy's table would point into the original.
    StringPool(const StringPool&) = delete;
    StringPool& operator=(const StringPool&) = delete;
    StringPool(StringPool&&) = default;
    StringPool& operator=(StringPool&&) = default;
    ~StringPool() = default;

    /// The number of `string`, compared exactly; numbers count from 0 in order of first appearance.
    [[nodiscard]] Number numberOf(std::string_view string);
    /// A number below `size()`; the string lasts until the pool is cleared.
    [[nodiscard]] const std::string& operator[](Number number) const { return *strings_[number]; }

    [[nodiscard]] std::size_t size() const { return strings_.size(); }
    void clear();

private:
    std::unordered_map<std::string, Number, StringHash, std::equal_to<>> numbers_;
    std::vector<const std::string*> strings_; // the keys of numbers_, which stay where they are
};

} // namespace lexiform
