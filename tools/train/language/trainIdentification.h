#pragma once

#include "base/Outcome.h"
#include "tools/train/file/ModelFileWriter.h"

#include <filesystem>
#include <ostream>
#include <string>

namespace lexiform::train {

/// Trains the model that tells languages on the training parts below `corpora` and the samples of
/// other languages, and appends its sections to `file`; or says which corpus is wrong and why. Tells on
/// `log` how it goes. The same corpora give the same bytes.
[[nodiscard]] Outcome<Done, std::string> trainIdentification(const std::filesystem::path& corpora,
                                                             ModelFileWriter& file, std::ostream& log);

} // namespace lexiform::train
