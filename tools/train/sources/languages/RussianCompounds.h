#pragma once

#include "tools/train/sources/Recipe.h"

namespace lexiform::train {

/// Joins the parts of words with hyphens ("юго", "-", "запад") that a corpus has as three tokens each, apart
/// from those of names ("Бад", "-", "Кёстриц"), whose tokens lose the spaces between them. The corpus has no
/// other hyphens.
[[nodiscard]] Preparation russianCompounds();

} // namespace lexiform::train
