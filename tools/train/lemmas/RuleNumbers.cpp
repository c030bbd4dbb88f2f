#include "tools/train/lemmas/RuleNumbers.h"

#include "linguistics/lemmas/LemmaFormat.h"

#include <algorithm>

namespace lexiform::train {

namespace {

using namespace linguistics;

// A rule that only one word needs is worth a label where that word is not too rare.
constexpr double leastWords = 2, leastOccurrences = 3;

} // namespace

void RuleNumbers::count(const LemmaRule& rule, double occurrences) {
    Use& use = uses_[rule];
    use.words += 1;
    use.occurrences += occurrences;
}

void RuleNumbers::number() {
    std::vector<std::pair<double, LemmaRule>> chosen;
    for (const auto& [rule, use] : uses_)
        if ((use.words >= leastWords || use.occurrences >= leastOccurrences) && !rule.keepsAll())
            chosen.emplace_back(use.words + use.occurrences, rule);
    std::stable_sort(chosen.begin(), chosen.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    if (chosen.size() >= mostLemmaLabels - firstRuleLabel)
        chosen.resize(mostLemmaLabels - firstRuleLabel - 1);
    rules_.emplace_back();
    for (auto& [count, rule] : chosen)
        rules_.push_back(std::move(rule));
    for (std::size_t i = 0; i < rules_.size(); ++i)
        labels_[rules_[i]] = static_cast<std::uint32_t>(firstRuleLabel + i);
}

std::uint32_t RuleNumbers::labelOf(const LemmaRule& rule) const {
    const auto found = labels_.find(rule);
    return found == labels_.end() ? 0 : found->second;
}

} // namespace lexiform::train
