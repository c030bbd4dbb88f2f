#include "tools/train/lemmas/LemmaCounts.h"

#include "tools/train/lemmas/RuleFinder.h"

namespace lexiform::train {

using namespace linguistics;

void LemmaCounts::add(const Corpus& corpus, double weight) {
    for (const GoldSentence& sentence : corpus) {
        const std::vector<TaggedWord> words = taggedWordsOf(sentence);
        for (std::size_t at = 0; at < words.size(); ++at) {
            const GoldToken& token = sentence.tokens[at];
            if (!token.pos || !token.lemma) continue;
            const auto found = ruleBetween(token.form, *token.lemma, *token.pos, caseRules_);
            if (!found) continue;
            const WordKey key{token.form, *token.pos};
            rules_[key][found->rule] += weight;
            casings_[{key, placeOf(words, at)}][found->casing] += weight;
        }
    }
}

void LemmaCounts::addByLexicon(const Corpus& corpus, const Lexicon& lexicon) {
    for (const GoldSentence& sentence : corpus)
        for (const GoldToken& token : sentence.tokens) {
            if (!token.pos) continue;
            const auto known = lexicon.find({foldedForm(token.form, caseRules_), *token.pos});
            const std::optional<FoundRule> found =
                known == lexicon.end() ? FoundRule{}
                                       : ruleBetween(token.form, known->second, *token.pos, caseRules_);
            if (found) rules_[{token.form, *token.pos}][found->rule] += 1;
        }
}

std::vector<TaggedWord> taggedWordsOf(const GoldSentence& sentence) {
    std::vector<TaggedWord> words;
    for (const GoldToken& token : sentence.tokens)
        words.push_back({token.form, token.pos.value_or(UniversalPos::X)});
    return words;
}

std::string foldedForm(std::string_view form, CaseRules rules) {
    const FoldedWord word(form, rules);
    return word.size() == 0 ? std::string(form) : lemmaBy({}, LemmaCasing::lower, word, rules);
}

} // namespace lexiform::train
