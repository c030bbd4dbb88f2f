#pragma once

#include "base/StringIndex.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lexiform {

/// Words, compared exactly and case-sensitively, with how often each occurs (at least once). The
/// order of iteration means nothing.
class WordDictionary {
public:
    using Entry = std::pair<std::string, std::int64_t>;

    WordDictionary() = default;
    /// Of a word that comes twice the last count holds.
    WordDictionary(std::initializer_list<Entry> entries);

    /// The count of `word`, which enters the dictionary with 0 when it is not in it, for the caller to
    /// change. Lasts until another word enters.
    [[nodiscard]] std::int64_t& operator[](std::string_view word);

    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    [[nodiscard]] bool empty() const { return entries_.empty(); }
    void clear();

    [[nodiscard]] auto begin() const { return entries_.begin(); }
    [[nodiscard]] auto end() const { return entries_.end(); }

    /// Whether both hold the same words with the same counts.
    [[nodiscard]] bool operator==(const WordDictionary& other) const;

private:
    std::vector<Entry> entries_;
    StringIndex index_;
};

/// Counts one occurrence of `word`, which enters the dictionary with 1 when it is not in it. A count
/// past the largest signed 64-bit value stops the program.
void countWord(WordDictionary& dictionary, std::string_view word);

} // namespace lexiform
