#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lexiform::train {

/// Trains how `languages` are cut into tokens and sentences, alone, and prints what that scores on their
/// development parts beside the rules. Where `folder` is given, the sections and what they get wrong go
/// there. Gives the exit status.
[[nodiscard]] int trainAndMeasureSegmentation(const std::vector<std::string>& languages,
                                              const std::filesystem::path& corpora,
                                              const std::filesystem::path& folder);

} // namespace lexiform::train
