#pragma once

#include "tools/train/sources/Source.h"

#include <set>
#include <string>

namespace lexiform::train {

/// The nouns that measure or count, as Chinese needs them after a number: those that stand after a
/// number, or a determiner that counts, most of the times that `training` has them. After such a word a
/// noun of this list is a classifier.
[[nodiscard]] std::set<std::string> chineseClassifiers(const std::vector<Source>& training);

} // namespace lexiform::train
