#pragma once

#include "tools/train/corpora/Lines.h"
#include "tools/train/lexicon/TurkishForms.h"

#include <filesystem>

namespace lexiform::train {

/// Adds the roots of the Turkish dictionaries in the folder `lists` to `forms`.
[[nodiscard]] ReadFault readTurkishForms(const std::filesystem::path& lists, TurkishForms& forms);

} // namespace lexiform::train
