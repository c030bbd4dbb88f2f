#include "tools/train/language/Fragments.h"

#include <algorithm>

namespace lexiform::train {

namespace {

constexpr std::string_view blanks = " \t\n";

std::string joined(const std::vector<std::string_view>& words, std::size_t first, std::size_t count) {
    std::string text;
    for (std::size_t i = first; i < first + count; ++i) {
        if (i > first) text += ' ';
        text += words[i];
    }
    return text;
}

} // namespace

std::string Fragments::fragmentOf(std::string_view text) {
    constexpr std::size_t longest = 30;
    const auto words = wordsOf(text);
    const bool whole = below(4) == 0;
    const std::size_t limit = whole ? longest : 3 + below(12);
    const std::size_t count = std::min(words.size(), limit);
    return joined(words, below(words.size() - count + 1), count);
}

std::string Fragments::mixtureOf(const std::vector<std::string>& words) {
    std::string text;
    for (std::size_t count = 3 + below(10); count > 0; --count) {
        text += words[below(words.size())];
        text += ' ';
    }
    return text;
}

std::vector<std::string_view> wordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    for (std::size_t at = text.find_first_not_of(blanks); at != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(blanks, at), text.size());
        words.push_back(text.substr(at, end - at));
        at = text.find_first_not_of(blanks, end);
    }
    return words;
}

} // namespace lexiform::train
