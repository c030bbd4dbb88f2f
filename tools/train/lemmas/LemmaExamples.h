#pragma once

#include "tools/train/lemmas/LemmaCounts.h"
#include "tools/train/lemmas/LemmaLexicon.h"
#include "tools/train/lemmas/LemmaPerceptron.h"
#include "tools/train/lemmas/MarkedWords.h"
#include "tools/train/lemmas/RuleNumbers.h"
#include "tools/train/sources/Source.h"

#include <vector>

namespace lexiform::train {

/// What `counts`, `lexicon` and, for marked words, the sentences of `sources` show of the choice of rules, in
/// this order. Words whose lemma takes a rule without a number are left out.
[[nodiscard]] std::vector<LemmaExample> ruleExamples(const LanguageSources& sources,
                                                     const LemmaCounts& counts,
                                                     const std::vector<LexiconLemma>& lexicon,
                                                     const RuleNumbers& numbers, const MarkedWords& marked);

/// What `counts` shows of the choice of capitals.
[[nodiscard]] std::vector<LemmaExample> casingExamples(const LemmaCounts& counts);

} // namespace lexiform::train
