#pragma once

#include "linguistics/file/ModelFile.h"
#include "tools/train/file/ModelFileWriter.h"

#include <cstddef>
#include <vector>

namespace lexiform::train {

/// The bytes of `model` with the sections of `lemmas` in the place of its own lemmas, or at its end where it
/// has none. All its other sections keep their bytes and their order.
[[nodiscard]] std::vector<std::byte> renewedModel(const linguistics::ModelFile& model,
                                                  const ModelFileWriter& lemmas);

} // namespace lexiform::train
