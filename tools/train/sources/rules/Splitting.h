#pragma once

#include "tools/train/sources/Recipe.h"

#include <string_view>

namespace lexiform::train {

/// Cuts `ending` off the words with one of `tags` whose rest has three bytes or more and
/// occurs as a word of the corpus; it becomes a
/// word of its own, without a space before it and with the tag `own`.
[[nodiscard]] Preparation withEndingApart(std::string_view ending, linguistics::UniversalPos own, Tags tags);

/// Cuts a last comma, stop, colon or semicolon off words of a list of names, outside the name.
[[nodiscard]] Preparation withPunctuationApart();

} // namespace lexiform::train
