#pragma once

#include "linguistics/lemmas/LemmaRule.h"
#include "linguistics/text/UniversalPos.h"

#include <optional>
#include <string_view>

namespace lexiform::train {

/// How a lemma comes from a form.
struct FoundRule {
    linguistics::LemmaRule rule;
    linguistics::LemmaCasing casing = linguistics::LemmaCasing::lower;
};

/// The rule with the fewest changes that makes `lemma` of `form`, and the casing that suits the part of
/// speech where several do; nothing where none can.
[[nodiscard]] std::optional<FoundRule> ruleBetween(std::string_view form, std::string_view lemma,
                                                   linguistics::UniversalPos pos,
                                                   linguistics::CaseRules rules);

} // namespace lexiform::train
