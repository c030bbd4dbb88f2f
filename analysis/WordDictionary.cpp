#include "analysis/WordDictionary.h"

#include "base/checkedSum.h"

#include <algorithm>

namespace lexiform {

WordDictionary::WordDictionary(std::initializer_list<Entry> entries) {
    for (const auto& [word, count] : entries)
        (*this)[word] = count;
}

std::int64_t& WordDictionary::operator[](std::string_view word) {
    const auto wordAt = [&](StringIndex::Place place) -> std::string_view { return entries_[place].first; };
    const StringIndex::Place place = index_.findOrAdd(word, wordAt);
    if (place == entries_.size()) entries_.emplace_back(word, 0);
    return entries_[place].second;
}

void WordDictionary::clear() {
    *this = WordDictionary(); // gives the memory back as well
}

bool WordDictionary::operator==(const WordDictionary& other) const {
    const auto wordAt = [&](StringIndex::Place place) -> std::string_view {
        return other.entries_[place].first;
    };
    return size() == other.size() && std::all_of(begin(), end(), [&](const Entry& entry) {
               const auto place = other.index_.find(entry.first, wordAt);
               return place && other.entries_[*place].second == entry.second;
           });
}

void countWord(WordDictionary& dictionary, std::string_view word) {
    std::int64_t& count = dictionary[word];
    count = checkedSum(count, 1);
}

} // namespace lexiform
