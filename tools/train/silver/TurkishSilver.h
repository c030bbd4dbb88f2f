#pragma once

#include "tools/train/corpora/Corpus.h"
#include "tools/train/lexicon/LexiconBuilder.h"
#include "tools/train/lexicon/TurkishForms.h"
#include "tools/train/sources/Source.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

namespace lexiform::train {

/// Puts right what a tagger made of a text with names: a capitalised word of a name is a proper noun;
/// one whose suffixes leave only a verb is a verb, and one that no verb explains is none. Words that
/// are in no dictionary stay as they are.
void correctTurkishTags(const TurkishForms& forms, Corpus& tagged);

/// Gives the corpora that have names alone parts of speech: those of a chain trained on the others, put right
/// by names and by the dictionaries below `corpora`. Tells `log` of the training; the fault says which
/// dictionary is missing or wrong.
[[nodiscard]] std::optional<std::string> addTurkishSilver(LanguageSources& sources, const Lexicon& lexicon,
                                                          const std::filesystem::path& corpora,
                                                          std::ostream& log);

} // namespace lexiform::train
