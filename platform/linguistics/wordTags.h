#pragma once

#include "analysis/tagger/TagScheme.h"
#include "platform/linguistics/TokenUnits.h"

namespace lexiform {

/// What the engine's analysis says of a word under a scheme; null for a scheme that is not known.
[[nodiscard]] TagOfToken wordTagsUnder(TagScheme scheme);

} // namespace lexiform
