#pragma once

#include "tools/train/EnglishSources.h"

#include <cstddef>
#include <ostream>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// Trains a model from `sources`: parts of speech first, then names, which use them. Writes what it
/// does to `log`. The same sources give the same bytes.
[[nodiscard]] std::vector<std::byte> trainModel(std::string_view language, const Sources& sources,
                                                std::ostream& log);

} // namespace lexiform::train
