#pragma once

#include "linguistics/lemmas/LemmaRule.h"

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace lexiform::train {

/// Gives the rules of a model their labels: first all are counted, then those worth it are numbered.
class RuleNumbers {
public:
    /// Counts one more word that `rule` serves, which occurs so often; fractions where a corpus counts less.
    void count(const linguistics::LemmaRule& rule, double occurrences);

    /// Numbers the rules that serve several words, or one that is not rare, the most useful first.
    void number();

    /// The label of `rule`; 0 for a rule that has none.
    [[nodiscard]] std::uint32_t labelOf(const linguistics::LemmaRule& rule) const;

    /// By label, from `firstRuleLabel` up; the first changes nothing.
    [[nodiscard]] const std::vector<linguistics::LemmaRule>& rules() const { return rules_; }

private:
    struct Use {
        double words = 0, occurrences = 0;
    };

    std::map<linguistics::LemmaRule, Use> uses_;
    std::vector<linguistics::LemmaRule> rules_;
    std::map<linguistics::LemmaRule, std::uint32_t> labels_;
};

} // namespace lexiform::train
