#pragma once

#include "base/StringIndex.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

namespace lexiform {

/// Keeps each distinct string once and gives it a number: a long text has a hundred times fewer
/// distinct words than tokens.
class StringPool {
public:
    using Number = StringIndex::Place;

    /// The number of `string`, compared exactly; numbers count from 0 in order of first appearance.
    [[nodiscard]] Number numberOf(std::string_view string);
    /// A number below `size()`; the string lasts until the pool is cleared.
    [[nodiscard]] const std::string& operator[](Number number) const { return strings_[number]; }

    [[nodiscard]] std::size_t size() const { return strings_.size(); }
    void clear();

private:
    StringIndex index_;
    std::deque<std::string> strings_; // where they stay
};

} // namespace lexiform
