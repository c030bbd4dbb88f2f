#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lexiform::train {

struct TrainingOptions {
    /// Whether models that are there already are trained anew.
    bool force = false;
    /// How many larger networks teach the tagger; nothing for what its language has by default.
    std::optional<std::size_t> teachers{};
};

/// Trains the models of `languages`, BCP 47, from the unpacked corpora and writes each to `<code>.lxm` in
/// `folder`. A run that was broken off goes on with those that are not there yet. Gives the exit status.
[[nodiscard]] int trainModels(const std::vector<std::string>& languages, const TrainingOptions& options,
                              const std::filesystem::path& corpora, const std::filesystem::path& folder);

} // namespace lexiform::train
