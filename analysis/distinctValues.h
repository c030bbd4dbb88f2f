#pragma once

#include "analysis/StringList.h"

#include <string>
#include <vector>

namespace lexiform {

/// The distinct values of a list, in the order of a hash set that is seeded afresh at every call:
/// neither sorted nor in order of appearance, and not the same from one call to the next. Strings are
/// equal when they are canonically equivalent; of several equal ones the first is given.
[[nodiscard]] std::vector<std::string> distinctValues(const StringList& list);

} // namespace lexiform
