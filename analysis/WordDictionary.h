#pragma once

#include "base/StringHash.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace lexiform {

/// Words, compared exactly and case-sensitively, with how often each occurs (at least once). The
/// order of iteration means nothing.
using WordDictionary = std::unordered_map<std::string, std::int64_t, StringHash, std::equal_to<>>;

/// Counts one occurrence of `word`, which enters the dictionary with 1 when it is not in it. A count
/// past the largest signed 64-bit value stops the program.
void countWord(WordDictionary& dictionary, std::string_view word);

} // namespace lexiform
