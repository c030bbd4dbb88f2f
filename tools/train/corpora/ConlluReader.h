#pragma once

#include "base/Outcome.h"
#include "tools/train/corpora/Corpus.h"

#include <filesystem>
#include <string>

namespace lexiform::train {

/// Reads a CoNLL-U file (Nivre et al. 2020, "Universal Dependencies v2"). A multiword token whose words
/// spell its surface becomes its words; any other becomes one token with its first word's annotation.
/// Names are read from `Name=` in the last column. The fault says which line is wrong and why.
[[nodiscard]] Outcome<Corpus, std::string> readConllu(const std::filesystem::path& file);

} // namespace lexiform::train
