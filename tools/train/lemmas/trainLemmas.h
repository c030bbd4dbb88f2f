#pragma once

#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/sources/Source.h"

#include <filesystem>
#include <ostream>

namespace lexiform::train {

/// Trains a lemmatizer from the sources that teach lemmas and from the lists of words below the folder
/// `corpora`, and appends its sections to `file`. Writes what it does to `log`. The same sources and lists
/// give the same bytes.
void trainLemmas(const LanguageSources& sources, const std::filesystem::path& corpora, ModelFileWriter& file,
                 std::ostream& log);

} // namespace lexiform::train
