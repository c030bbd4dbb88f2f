#include "tools/train/sources/rules/Rule.h"

#include "tools/train/corpora/NameTags.h"

namespace lexiform::train {

Rules joined(std::initializer_list<Rules> parts) {
    Rules all;
    for (const Rules& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

void apply(const Rules& rules, GoldSentence& sentence) {
    const LookedAt looked(sentence);
    for (const Rule& rule : rules)
        for (std::size_t at = 0; at < sentence.tokens.size(); ++at)
            if (rule.when({looked, at})) rule.change(sentence.tokens[at]);
    auto previous = linguistics::NameLabel::outside;
    for (GoldToken& token : sentence.tokens)
        previous = token.name = repaired(previous, token.name);
}

} // namespace lexiform::train
