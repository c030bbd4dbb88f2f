#pragma once

#include "analysis/WordDetails.h"

#include <QString>

namespace lexiform::qt {

/// What is known of a word in the words of the interface's language, a line each: its class, lemma,
/// language and script. Empty for white space and where nothing is known.
[[nodiscard]] QString textOf(const WordDetails& details);

} // namespace lexiform::qt
