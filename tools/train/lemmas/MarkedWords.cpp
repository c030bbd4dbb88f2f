#include "tools/train/lemmas/MarkedWords.h"

namespace lexiform::train {

namespace {

using namespace linguistics;

// A word is looked at with its neighbours where a second lemma has this share of its occurrences.
constexpr double leastSecondShare = 0.03, leastSecondCount = 3;

bool hasSecond(const ChoiceCounts<LemmaRule>& rules) {
    double sum = 0;
    for (const auto& [rule, count] : rules)
        sum += count;
    const double second = sum - rules.at(mostOf(rules));
    return second >= leastSecondCount && second >= leastSecondShare * sum;
}

} // namespace

MarkedWords::MarkedWords(const LemmaCounts& counts, const RuleNumbers& numbers)
    : caseRules_(counts.caseRules()) {
    std::map<WordKey, ChoiceCounts<LemmaRule>> folded;
    for (const auto& [word, rules] : counts.rules())
        for (const auto& [rule, count] : rules)
            if (numbers.labelOf(rule) != 0) folded[keyOf(word.form, word.pos)][rule] += count;
    for (const auto& [word, rules] : folded)
        if (hasSecond(rules)) words_.insert(word);
}

WordKey MarkedWords::keyOf(std::string_view form, UniversalPos pos) const {
    return {foldedForm(form, caseRules_), pos};
}

} // namespace lexiform::train
