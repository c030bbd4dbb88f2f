#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lexiform::train {

/// Trains the lemmas of `languages`, BCP 47, from the unpacked corpora and lays them into the models
/// `<code>.lxm` in `folder`, whose other sections stay byte for byte; a model whose lemmas are of another
/// version will do. Stops at the first model that is missing or damaged. Gives the exit status.
[[nodiscard]] int renewLemmas(const std::vector<std::string>& languages, const std::filesystem::path& corpora,
                              const std::filesystem::path& folder);

} // namespace lexiform::train
