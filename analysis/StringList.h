#pragma once

#include "base/StringPool.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform {

/// A list of strings, many of them equal: four bytes an entry, and each distinct string once.
class StringList {
public:
    StringList() = default;
    StringList(std::initializer_list<std::string_view> strings);

    void push_back(std::string_view string) { entries_.push_back(pool_.numberOf(string)); }
    void clear();

    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    [[nodiscard]] bool empty() const { return entries_.empty(); }
    /// The entry at a position below `size()`; lasts until the list is cleared.
    [[nodiscard]] const std::string& operator[](std::size_t position) const {
        return pool_[entries_[position]];
    }

    /// The distinct entries, numbered from 0 in order of first appearance.
    [[nodiscard]] const StringPool& distinct() const { return pool_; }
    /// The number of the entry at a position below `size()` among the distinct ones.
    [[nodiscard]] StringPool::Number numberAt(std::size_t position) const { return entries_[position]; }

    [[nodiscard]] bool operator==(const StringList& other) const;

private:
    StringPool pool_;
    std::vector<StringPool::Number> entries_;
};

} // namespace lexiform
