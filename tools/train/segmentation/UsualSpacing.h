#pragma once

#include "tools/train/corpora/Corpus.h"

namespace lexiform::train {

/// Whether the spacing of a corpus was lost: marks stand apart from the words before them.
[[nodiscard]] bool hasLostSpacing(const Corpus& corpus);

/// The corpus with the spaces of ordinary print: none before closing marks and after opening ones, none
/// beside an apostrophe or a hyphen that starts or ends a word.
[[nodiscard]] Corpus withUsualSpacing(Corpus corpus);

} // namespace lexiform::train
