#pragma once

#include "base/Outcome.h"
#include "tools/train/Corpus.h"
#include "tools/train/LexiconBuilder.h"

#include <filesystem>
#include <string>
#include <vector>

namespace lexiform::train {

/// A corpus and how much each of its sentences counts in training.
struct WeightedCorpus {
    Corpus corpus;
    float weight = 1;
};

/// All that a model of a language is trained from.
struct Sources {
    std::vector<WeightedCorpus> tagged; ///< universal parts of speech on every word
    std::vector<WeightedCorpus> names;  ///< name labels on every word
    Lexicon lexicon;
    std::size_t transitionClasses = 1; ///< more than every ambiguity class in the lexicon
};

/// Reads the English corpora below `folder`; the fault says which file is missing or wrong.
[[nodiscard]] Outcome<Sources, std::string> englishSources(const std::filesystem::path& folder);

} // namespace lexiform::train
