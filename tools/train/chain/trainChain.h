#pragma once

#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/lexicon/LexiconBuilder.h"
#include "tools/train/sources/Source.h"

#include <cstddef>
#include <ostream>

namespace lexiform::train {

/// Trains a linear chain for parts of speech from the training part of `sources` and appends its sections,
/// `lexicon` among them, to `file`. It finds no names. The least important weights are left out of a model
/// that would have more than `mostBytes`. Writes what it does to `log`. The same sources give the same bytes.
void trainChain(const LanguageSources& sources, const Lexicon& lexicon, std::size_t mostBytes,
                ModelFileWriter& file, std::ostream& log);

} // namespace lexiform::train
