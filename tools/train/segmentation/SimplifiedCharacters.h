#pragma once

#include "tools/train/corpora/Corpus.h"

namespace lexiform::train {

/// The corpus with its traditional Chinese characters simplified, form by form.
[[nodiscard]] Corpus inSimplifiedCharacters(Corpus corpus);

} // namespace lexiform::train
