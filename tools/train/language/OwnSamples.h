#pragma once

#include "base/Outcome.h"

#include <filesystem>
#include <string>
#include <vector>

namespace lexiform::train {

/// What a language without a corpus is known by.
struct OwnSample {
    std::string language;           ///< BCP 47
    std::vector<std::string> words; ///< its commonest
    std::vector<std::string> sentences;
};

/// The samples in every file of `folder`, in which "= CODE" starts a language, one line of words
/// follows, and lines of sentences follow that; or which file is wrong.
[[nodiscard]] Outcome<std::vector<OwnSample>, std::string> readSamples(const std::filesystem::path& folder);

/// The folder of the samples that we wrote for languages that a model of words would else take for
/// their neighbours.
[[nodiscard]] std::filesystem::path ownSamples();

} // namespace lexiform::train
