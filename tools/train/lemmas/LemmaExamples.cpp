#include "tools/train/lemmas/LemmaExamples.h"

#include "linguistics/lemmas/LemmaFeatures.h"
#include "tools/train/lemmas/RuleFinder.h"

#include <cmath>
#include <map>
#include <string_view>

namespace lexiform::train {

namespace {

using namespace linguistics;

// Of a frequent word so many occurrences show enough.
constexpr std::size_t mostOccurrences = 400;

std::int32_t weightOf(double count) {
    return 1 + static_cast<std::int32_t>(std::log2(1 + count));
}

/// Gathers the examples of rules.
class RuleExamples {
public:
    RuleExamples(CaseRules caseRules, const RuleNumbers& numbers, const MarkedWords& marked)
        : caseRules_(caseRules), numbers_(numbers), marked_(marked) {}

    void addTreebankWords(const LemmaCounts& counts) {
        for (const auto& [word, rules] : counts.rules()) {
            const LemmaRule& rule = mostOf(rules);
            const std::uint32_t label = numbers_.labelOf(rule);
            if (label == 0 || marked_.contains(marked_.keyOf(word.form, word.pos))) continue;
            add(word.form, word.pos, label);
            examples_.back().weight = weightOf(rules.at(rule));
        }
    }

    void addLexiconWords(const std::vector<LexiconLemma>& lexicon) {
        for (const LexiconLemma& line : lexicon)
            if (const std::uint32_t label = labelBetween(line.form, line.lemma, line.pos))
                add(line.form, line.pos, label);
    }

    void addMarkedWords(const GoldSentence& sentence) {
        const std::vector<TaggedWord> words = taggedWordsOf(sentence);
        for (std::size_t at = 0; at < words.size(); ++at) {
            const auto& lemma = sentence.tokens[at].lemma;
            const WordKey key = marked_.keyOf(words[at].form, words[at].pos);
            if (!lemma || !marked_.contains(key) || ++seen_[key] > mostOccurrences) continue;
            const std::uint32_t label = labelBetween(words[at].form, *lemma, words[at].pos);
            if (label == 0) continue;
            add(words[at].form, words[at].pos, label);
            addNeighbours(words, at);
        }
    }

    [[nodiscard]] std::vector<LemmaExample> examples() && { return std::move(examples_); }

private:
    // 0 where no rule with a number makes the lemma.
    [[nodiscard]] std::uint32_t labelBetween(std::string_view form, std::string_view lemma,
                                             UniversalPos pos) const {
        const auto found = ruleBetween(form, lemma, pos, caseRules_);
        return found ? numbers_.labelOf(found->rule) : 0;
    }

    [[nodiscard]] LemmaTraits traitsOf(std::string_view form) const {
        return lemmaTraitsOf(FoldedWord(form, caseRules_));
    }

    void add(std::string_view form, UniversalPos pos, std::uint32_t label) {
        const LemmaTraits traits = traitsOf(form);
        LemmaExample& example = examples_.emplace_back();
        forEachRuleFeature(traits, pos, [&](std::uint64_t feature) { example.features.push_back(feature); });
        example.gold = label;
        example.wordSize = static_cast<std::uint32_t>(traits.size);
    }

    // To the latest example.
    void addNeighbours(const std::vector<TaggedWord>& words, std::size_t at) {
        const auto neighbour = [&](std::size_t place) {
            return place < words.size() ? lemmaNeighbourOf(words[place], caseRules_) : LemmaNeighbour{};
        };
        examples_.back().hasNeighbours = true;
        forEachNeighbourFeature(traitsOf(words[at].form), words[at].pos, neighbour(at - 1), neighbour(at + 1),
                                [&](std::uint64_t feature) { examples_.back().features.push_back(feature); });
    }

    CaseRules caseRules_;
    const RuleNumbers& numbers_;
    const MarkedWords& marked_;
    std::map<WordKey, std::size_t> seen_;
    std::vector<LemmaExample> examples_;
};

} // namespace

std::vector<LemmaExample> ruleExamples(const LanguageSources& sources, const LemmaCounts& counts,
                                       const std::vector<LexiconLemma>& lexicon, const RuleNumbers& numbers,
                                       const MarkedWords& marked) {
    RuleExamples gathered(counts.caseRules(), numbers, marked);
    gathered.addTreebankWords(counts);
    gathered.addLexiconWords(lexicon);
    for (const Source& source : sources.training) {
        if (source.lemmaWeight <= 0) continue;
        for (const GoldSentence& sentence : source.corpus)
            gathered.addMarkedWords(sentence);
    }
    return std::move(gathered).examples();
}

std::vector<LemmaExample> casingExamples(const LemmaCounts& counts) {
    std::vector<LemmaExample> examples;
    for (const auto& [placed, casings] : counts.casings()) {
        const LemmaTraits traits = lemmaTraitsOf(FoldedWord(placed.word.form, counts.caseRules()));
        LemmaExample example;
        forEachCasingFeature(traits, placed.word.pos, placed.place,
                             [&](std::uint64_t feature) { example.features.push_back(feature); });
        example.gold = static_cast<std::uint32_t>(mostOf(casings));
        example.weight = weightOf(casings.at(mostOf(casings)));
        examples.push_back(std::move(example));
    }
    return examples;
}

} // namespace lexiform::train
