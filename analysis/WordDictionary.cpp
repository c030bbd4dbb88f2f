#include "analysis/WordDictionary.h"

#include "base/checkedSum.h"

namespace lexiform {

void countWord(WordDictionary& dictionary, std::string_view word) {
    const auto entry = dictionary.find(word);
    if (entry != dictionary.end())
        entry->second = checkedSum(entry->second, 1);
    else
        dictionary.emplace(word, 1);
}

} // namespace lexiform
