#pragma once

#include "tools/train/sources/Source.h"

#include <set>
#include <string>
#include <vector>

namespace lexiform::train {

/// Leaves out the sentences that hold lost or invisible characters (U+FFFD, byte order marks, zero
/// widths that are not joiners), and with `wholly` those with a word without a part of speech. Trims
/// white space at both ends of forms.
void clean(Corpus& corpus, bool wholly);

/// Says of sentences whether they were met before. Short ones, which recur by nature, never were.
class SentenceMemory {
public:
    /// Whether a sentence of the same forms was remembered.
    [[nodiscard]] bool knows(const GoldSentence& sentence) const;
    /// Remembers it; answers whether it was new.
    bool remember(const GoldSentence& sentence);

private:
    std::set<std::string> sentences_;
};

} // namespace lexiform::train
