#pragma once

#include "linguistics/text/UniversalPos.h"
#include "tools/train/lemmas/AffixDictionary.h"

#include <vector>

namespace lexiform::train {

// Spelling dictionaries name no parts of speech: what made a form, and how its word ends, tell those that it
// may have. None for a form that teaches nothing of lemmas.

[[nodiscard]] std::vector<linguistics::UniversalPos> frenchTags(const AffixedForm& form);
[[nodiscard]] std::vector<linguistics::UniversalPos> spanishTags(const AffixedForm& form);
[[nodiscard]] std::vector<linguistics::UniversalPos> russianTags(const AffixedForm& form);

} // namespace lexiform::train
