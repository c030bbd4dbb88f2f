#pragma once

#include "analysis/tagger/TagScheme.h"
#include "linguistics/text/Analysis.h"
#include "platform/linguistics/TokenUnits.h"

#include <span>

namespace lexiform {

/// What the engine's analysis says of a word under a scheme; null for a scheme that is not known.
[[nodiscard]] TagOfToken wordTagsUnder(TagScheme scheme);

/// How deep an analysis must go to tell what those schemes ask for.
[[nodiscard]] linguistics::Depth depthFor(std::span<const TagScheme> schemes);

} // namespace lexiform
