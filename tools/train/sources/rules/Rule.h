#pragma once

#include "tools/train/sources/rules/Change.h"
#include "tools/train/sources/rules/Condition.h"

#include <vector>

namespace lexiform::train {

/// A difference between an annotation and its language's convention, and its cure: `change` for every
/// word that is as `when` says.
struct Rule {
    Condition when;
    Change change;
};

using Rules = std::vector<Rule>;

/// The rules of all parts, in their order.
[[nodiscard]] Rules joined(std::initializer_list<Rules> parts);

/// Applies `rules` one after the other, each to all words from the first to the last, and puts right
/// what of names no longer begins.
void apply(const Rules& rules, GoldSentence& sentence);

} // namespace lexiform::train
