#pragma once

#include "tools/train/lemmas/LemmaCounts.h"
#include "tools/train/lemmas/LemmaLexicon.h"

#include <ostream>
#include <string>
#include <vector>

namespace lexiform::train {

/// The lines of `lexicon` to learn from beside treebanks: no word that these have with the same tag, no part
/// of speech for which the lexicon keeps other conventions than they do, and of the words that are not
/// `frequent` no more than teach the rules.
[[nodiscard]] std::vector<LexiconLemma> filteredLexicon(const std::vector<LexiconLemma>& lexicon,
                                                        const std::vector<std::string>& frequent,
                                                        const LemmaCounts& treebanks, std::ostream& log);

} // namespace lexiform::train
