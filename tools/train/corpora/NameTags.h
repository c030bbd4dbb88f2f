#pragma once

#include "linguistics/text/NameLabel.h"

#include <string_view>

namespace lexiform::train {

/// The label that corpora spell "B-PER", "I-LOC" and so on; every other tag is outside.
[[nodiscard]] linguistics::NameLabel nameLabelSpelt(std::string_view tag);

/// The label of a word given the one before it: a further word of no name begins one.
[[nodiscard]] linguistics::NameLabel repaired(linguistics::NameLabel previous, linguistics::NameLabel label);

} // namespace lexiform::train
