#pragma once

#include "tools/train/corpora/Corpus.h"
#include "tools/train/lexicon/TurkishForms.h"

namespace lexiform::train {

/// Cuts copulas and -ki off the words of a text without annotation where the dictionary has no other reading
/// of the whole; what is in a name stays whole.
void splitTurkishWords(const TurkishForms& forms, Corpus& corpus);

} // namespace lexiform::train
