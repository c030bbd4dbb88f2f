#pragma once

#include "tools/train/sources/Source.h"

#include <cstddef>
#include <ostream>
#include <span>
#include <string>

namespace lexiform::train {

/// Prints for each development part of `sources` how well its tokens and sentences are found by rules and
/// by the model file `bytes`, in two layouts of the text; writes what the model gets wrong to `errors`. The
/// fault says what is wrong with the file; empty for none.
[[nodiscard]] std::string measureSegmentation(const LanguageSources& sources,
                                              std::span<const std::byte> bytes, std::ostream& out,
                                              std::ostream& errors);

} // namespace lexiform::train
