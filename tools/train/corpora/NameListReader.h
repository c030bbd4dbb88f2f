#pragma once

#include "base/Outcome.h"
#include "tools/train/corpora/Corpus.h"

#include <filesystem>
#include <string>

namespace lexiform::train {

/// Reads sentences of lines FORM, TAB, O or B-/I- with PER, LOC or ORG; an empty line ends a sentence.
/// A form "@" with what follows it becomes one handle outside every name, as the tokeniser cuts it.
[[nodiscard]] Outcome<Corpus, std::string> readNameList(const std::filesystem::path& file);

} // namespace lexiform::train
