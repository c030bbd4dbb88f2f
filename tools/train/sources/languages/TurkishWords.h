#pragma once

#include "tools/train/sources/Recipe.h"

namespace lexiform::train {

/// Writes words that are all in capitals in Turkish lower case (İ to i, I to ı), lemmas too.
[[nodiscard]] Preparation turkishLowerCased();

/// Brings words that one school of Turkish treebanks takes whole, under the class of what they serve
/// as, to the other's: participles, verbal nouns and converbs are verbs; the copulas after nouns and
/// compound tenses and the suffix -ki are words of their own. Verbs are known by their finite forms in
/// the same corpus.
[[nodiscard]] Preparation turkishSplit();

} // namespace lexiform::train
