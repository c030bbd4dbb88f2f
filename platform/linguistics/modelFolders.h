#pragma once

#include <filesystem>
#include <vector>

namespace lexiform {

/// Where a program looks for its models, in order: the folder that the environment names in
/// `LEXIFORM_MODELS`, if any, then `../share/lexiform/models` seen from the folder of the running
/// executable, which serves the build tree and an installation alike.
[[nodiscard]] std::vector<std::filesystem::path> modelFolders();

} // namespace lexiform
