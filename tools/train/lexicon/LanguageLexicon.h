#pragma once

#include "base/Outcome.h"
#include "tools/train/lexicon/LexiconBuilder.h"
#include "tools/train/sources/Source.h"

#include <filesystem>
#include <string>

namespace lexiform::train {

/// What is known of the words of a language from its dictionaries, gazetteers and running texts below
/// `corpora`: ambiguity classes where a dictionary tells parts of speech, lists of names, and clusters.
/// Of the training corpora it uses the forms alone. The fault says which file is missing or wrong.
[[nodiscard]] Outcome<Lexicon, std::string> lexiconOf(const LanguageSources& sources,
                                                      const std::filesystem::path& corpora);

} // namespace lexiform::train
