#pragma once

#include "tools/train/sources/Recipe.h"

namespace lexiform::train {

/// Writes forms and lemmas in simplified characters, by the transliteration of the Unicode CLDR.
[[nodiscard]] Preparation simplifiedCharacters();

/// Gives back to punctuation the full width that it has in Chinese text.
[[nodiscard]] Preparation fullWidthPunctuation();

} // namespace lexiform::train
