#pragma once

#include "linguistics/text/Hash.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lexiform::linguistics {

/// Calls `visit` with the hash of every feature of `words`, in which each word stands between blanks:
/// the sequences of 2 to 4 characters in a word and the blanks around it, and the word itself
/// (Cavnar and Trenkle 1994, "N-gram-based text categorization"). Trainer and reader share it.
template <typename Visit>
void visitNgrams(std::u16string_view words, Visit&& visit) {
    constexpr std::uint64_t wordSeed = 0x77;
    std::uint64_t last = 0; // the last four characters of the word, its first blank included
    std::uint64_t word = wordSeed;
    std::size_t length = 0;
    for (const char16_t letter : words) {
        last = last << 16 | letter;
        ++length;
        if (length >= 2) visit(combined(2, last & 0xFFFFFFFF));
        if (length >= 3) visit(combined(3, last & 0xFFFFFFFFFFFF));
        if (length >= 4) visit(combined(4, last));
        if (letter != u' ') {
            word = combined(word, letter);
            continue;
        }
        if (length > 4) visit(word);
        last = letter; // the blank that ends a word starts the next
        length = 1;
        word = wordSeed;
    }
}

} // namespace lexiform::linguistics
