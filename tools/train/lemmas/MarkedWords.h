#pragma once

#include "tools/train/lemmas/LemmaCounts.h"
#include "tools/train/lemmas/RuleNumbers.h"

#include <set>
#include <string_view>

namespace lexiform::train {

/// The words with one part of speech and several lemmas, which their neighbours must tell apart.
class MarkedWords {
public:
    /// Those of `counts`, as far as `numbers` has rules for their lemmas.
    MarkedWords(const LemmaCounts& counts, const RuleNumbers& numbers);

    /// The key that stands for `word`: "Left" and "left" are one.
    [[nodiscard]] WordKey keyOf(std::string_view form, linguistics::UniversalPos pos) const;
    [[nodiscard]] bool contains(const WordKey& key) const { return words_.contains(key); }
    [[nodiscard]] const std::set<WordKey>& words() const { return words_; }

private:
    linguistics::CaseRules caseRules_;
    std::set<WordKey> words_;
};

} // namespace lexiform::train
