#pragma once

#include "tools/train/corpora/Corpus.h"
#include "tools/train/lexicon/TurkishForms.h"

namespace lexiform::train {

/// Puts right what a tagger made of a text with names: a capitalised word of a name is a proper noun;
/// one whose suffixes leave only a verb is a verb, and one that no verb explains is none. Words that
/// are in no dictionary stay as they are.
void correctTurkishTags(const TurkishForms& forms, Corpus& tagged);

} // namespace lexiform::train
