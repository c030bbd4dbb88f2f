#pragma once

#include "base/Outcome.h"
#include "tools/train/corpora/Corpus.h"

#include <filesystem>
#include <string>
#include <vector>

namespace lexiform::train {

/// Sentences or paragraphs in one language.
struct LanguageTexts {
    std::string language;               ///< BCP 47
    std::vector<std::string> annotated; ///< from treebanks and name lists
    std::vector<std::string> open;      ///< from running text; may be empty
};

/// The sentence as running text; where `spaced` is false its spaces are those of common typography.
[[nodiscard]] std::string textOf(const GoldSentence& sentence, bool spaced);

/// The training parts of every language below `corpora` that a model of words can tell, or which file
/// is wrong and why.
[[nodiscard]] Outcome<std::vector<LanguageTexts>, std::string>
trainingTexts(const std::filesystem::path& corpora);

/// The development parts of every language below `corpora`.
[[nodiscard]] Outcome<std::vector<LanguageTexts>, std::string>
developmentTexts(const std::filesystem::path& corpora);

} // namespace lexiform::train
