#pragma once

#include "base/Outcome.h"
#include "tools/train/sources/Recipe.h"
#include "tools/train/sources/Source.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// The languages that there are recipes for, BCP 47.
[[nodiscard]] std::vector<std::string> sourceLanguages();

/// Reads the corpora of `language` below `corpora`, cleaned and brought to one convention. Training has no
/// sentence of the development parts, and none twice; the development parts are as their files have
/// them. The fault says which file is missing or wrong.
[[nodiscard]] Outcome<LanguageSources, std::string> sourcesOf(std::string_view language,
                                                              const std::filesystem::path& corpora);

/// The same by a given recipe, over the files of the folder `folder`.
[[nodiscard]] Outcome<LanguageSources, std::string> sourcesBy(const Recipe& recipe, std::string_view language,
                                                              const std::filesystem::path& folder);

} // namespace lexiform::train
