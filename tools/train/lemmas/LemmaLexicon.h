#pragma once

#include "linguistics/text/UniversalPos.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// A line of a list of words with their lemmas.
struct LexiconLemma {
    std::string form;
    std::string lemma;
    linguistics::UniversalPos pos = linguistics::UniversalPos::X;
};

/// All that the lists below the folder `corpora` tell of the lemmas of `language`, in the order of the lists;
/// nothing where it has none.
[[nodiscard]] std::vector<LexiconLemma> readLemmaLexicon(std::string_view language,
                                                         const std::filesystem::path& corpora);

/// The words of the frequency list of `language`, the most frequent first.
[[nodiscard]] std::vector<std::string> readFrequentWords(std::string_view language,
                                                         const std::filesystem::path& corpora);

} // namespace lexiform::train
