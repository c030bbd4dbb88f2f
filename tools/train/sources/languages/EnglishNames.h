#pragma once

#include "tools/train/sources/rules/KnownNames.h"

namespace lexiform::train::recipes {

/// The commonest names in the English treebank of web text, and others that everyone knows, told apart by
/// hand: its training part has none annotated. Spelt as in its tokens.
[[nodiscard]] KnownNames englishNames();

} // namespace lexiform::train::recipes
