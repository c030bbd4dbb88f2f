#pragma once

#include "tools/train/corpora/Corpus.h"

#include <filesystem>
#include <string>
#include <vector>

namespace lexiform::train {

/// An annotated corpus, brought to its language's one convention, and what it is good for. Where a
/// weight is 0 the corpus teaches nothing of that kind.
struct Source {
    std::string name; ///< of the file, for example "en_ewt-train"
    Corpus corpus;
    float tagWeight = 0;   ///< how much each sentence counts for parts of speech
    float lemmaWeight = 0; ///< the same for lemmas
    float nameWeight = 0;  ///< the same for names
    /// Whether tokens, spaces and sentence ends are those of a running text.
    bool hasSpacing = false;
    /// Whether sentences end where those of a running text do.
    bool hasSentences = true;
};

/// All that the models of one language are trained from and chosen by.
struct LanguageSources {
    std::string language; ///< BCP 47
    std::vector<Source> training;
    /// The development parts: their text as it is, their annotation as it is.
    std::vector<Source> development;
    /// Running text without annotation, a paragraph a line.
    std::vector<std::filesystem::path> openTexts;
};

} // namespace lexiform::train
