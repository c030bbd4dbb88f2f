#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// The Compact Language Detector 2 with its larger tables: some 160 languages, less surely told than
/// an NgramModel tells those that it was trained on.
namespace quadgrams {

struct Answer {
    std::string_view language; ///< BCP 47; empty where it cannot tell; lasts as long as the program
    bool reliable = false;     ///< by its own judgement
};

/// The language of most of `text`, well-formed UTF-8 of letters and blanks.
[[nodiscard]] Answer languageOf(const std::string& text);

/// The codes that `languageOf` may give, each once.
[[nodiscard]] std::vector<std::string_view> languagesKnown();

} // namespace quadgrams

} // namespace lexiform::linguistics
