#include "tools/train/lemmas/trainLemmas.h"

#include "linguistics/lemmas/LemmaFormat.h"
#include "tools/train/lemmas/LemmaCounts.h"
#include "tools/train/lemmas/LemmaLexicon.h"
#include "tools/train/lemmas/LemmaModelWriter.h"
#include "tools/train/lemmas/LemmaPerceptron.h"
#include "tools/train/lemmas/LexiconFilter.h"
#include "tools/train/lemmas/RuleFinder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace lexiform::train {

namespace {

using namespace linguistics;

using RuleCounts = ChoiceCounts<LemmaRule>;

// Weights for which there is room: four bytes and a half each.
constexpr std::size_t roomForWeights(std::string_view language) {
    constexpr std::array<std::string_view, 8> firstRing = {"en", "de", "fr", "es", "it", "pt", "ru", "tr"};
    return std::find(firstRing.begin(), firstRing.end(), language) != firstRing.end() ? 60'000 : 40'000;
}
constexpr std::size_t roomForCasings = 4'000;

constexpr int rounds = 8, roundsAfterPruning = 6;

// A rule that only one word needs is worth a label where that word is not too rare.
constexpr double leastWords = 2, leastOccurrences = 3;

// A word is looked at with its neighbours where a second lemma has this share of its occurrences.
constexpr double leastSecondShare = 0.03, leastSecondCount = 3;
// Of a frequent word so many occurrences show enough.
constexpr std::size_t mostOccurrences = 400;

std::int32_t weightOf(double count) {
    return 1 + static_cast<std::int32_t>(std::log2(1 + count));
}

/// Numbers the rules that are worth it.
class RuleNumbers {
public:
    void count(const LemmaRule& rule, double occurrences) {
        auto& [words, sum] = counts_[rule];
        words += 1;
        sum += occurrences;
    }

    void number() {
        std::vector<std::pair<double, LemmaRule>> chosen;
        for (const auto& [rule, counts] : counts_)
            if ((counts.first >= leastWords || counts.second >= leastOccurrences) && !rule.keepsAll())
                chosen.emplace_back(counts.first + counts.second, rule);
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

    /// The label of `rule`; 0 for a rule that has none.
    [[nodiscard]] std::uint32_t labelOf(const LemmaRule& rule) const {
        const auto found = labels_.find(rule);
        return found == labels_.end() ? 0 : found->second;
    }
    [[nodiscard]] const std::vector<LemmaRule>& rules() const { return rules_; }

private:
    std::map<LemmaRule, std::pair<double, double>> counts_;
    std::vector<LemmaRule> rules_;
    std::map<LemmaRule, std::uint32_t> labels_;
};

class LemmaTrainer {
public:
    LemmaTrainer(const LanguageSources& sources, std::ostream& log)
        : sources_(sources), log_(log), counts_(caseRulesOf(sources.language)) {}

    void train(const std::filesystem::path& corpora, ModelFileWriter& file) {
        countTreebanks();
        readLexicon(corpora);
        numberRules();
        findMarkedWords();
        learnRules();
        learnCasings();
        writeLemmas(numbers_.rules(), weights_, file);
        log_ << sources_.language << ": " << numbers_.rules().size() << " rules, " << marked_.size()
             << " words with neighbours, " << weights_.size() << " weights\n";
    }

private:
    void countTreebanks() {
        for (const Source& source : sources_.training)
            if (source.lemmaWeight > 0) counts_.add(source.corpus, source.lemmaWeight);
    }

    void readLexicon(const std::filesystem::path& corpora) {
        lexicon_ = filteredLexicon(readLemmaLexicon(sources_.language, corpora),
                                   readFrequentWords(sources_.language, corpora), counts_, log_);
        if (counts_.rules().empty()) keepOtherWords();
    }

    // Where no treebank has lemmas, the words that no list knows show what is left as it is.
    void keepOtherWords() {
        std::set<WordKey> known;
        for (const LexiconLemma& line : lexicon_)
            known.insert({line.form, line.pos});
        for (const Source& source : sources_.training)
            if (source.tagWeight > 0)
                counts_.addUnchanged(source.corpus,
                                     [&](const WordKey& word) { return known.contains(word); });
    }

    void numberRules() {
        for (const auto& [word, rules] : counts_.rules())
            for (const auto& [rule, count] : rules)
                numbers_.count(rule, count);
        for (const LexiconLemma& line : lexicon_)
            if (const auto found = ruleBetween(line.form, line.lemma, line.pos, counts_.caseRules()))
                numbers_.count(found->rule, 0);
        numbers_.number();
    }

    // Words are marked in lower case: "Left" and "left" are one.
    void findMarkedWords() {
        std::map<WordKey, RuleCounts> folded;
        for (const auto& [word, rules] : counts_.rules())
            for (const auto& [rule, count] : rules)
                if (numbers_.labelOf(rule) != 0)
                    folded[{foldedForm(word.form, counts_.caseRules()), word.pos}][rule] += count;
        for (const auto& [word, rules] : folded) {
            double sum = 0;
            for (const auto& [rule, count] : rules)
                sum += count;
            const double second = sum - rules.at(mostOf(rules));
            if (second >= leastSecondCount && second >= leastSecondShare * sum) marked_.insert(word);
        }
    }

    [[nodiscard]] WordKey markedKey(std::string_view form, UniversalPos pos) const {
        return {foldedForm(form, counts_.caseRules()), pos};
    }

    [[nodiscard]] LemmaExample exampleOf(std::string_view form, UniversalPos pos, std::uint32_t label) const {
        const LemmaTraits traits = lemmaTraitsOf(FoldedWord(form, counts_.caseRules()));
        LemmaExample example;
        forEachRuleFeature(traits, pos, [&](std::uint64_t feature) { example.features.push_back(feature); });
        example.gold = label;
        example.wordSize = static_cast<std::uint32_t>(traits.size);
        return example;
    }

    void addTreebankWords(std::vector<LemmaExample>& examples) const {
        for (const auto& [word, rules] : counts_.rules()) {
            const LemmaRule& rule = mostOf(rules);
            const std::uint32_t label = numbers_.labelOf(rule);
            if (label == 0 || marked_.contains(markedKey(word.form, word.pos))) continue;
            examples.push_back(exampleOf(word.form, word.pos, label));
            examples.back().weight = weightOf(rules.at(rule));
        }
    }

    void addLexiconWords(std::vector<LemmaExample>& examples) const {
        for (const LexiconLemma& line : lexicon_) {
            const auto found = ruleBetween(line.form, line.lemma, line.pos, counts_.caseRules());
            const std::uint32_t label = found ? numbers_.labelOf(found->rule) : 0;
            if (label != 0) examples.push_back(exampleOf(line.form, line.pos, label));
        }
    }

    void addMarkedWords(std::vector<LemmaExample>& examples) const {
        std::map<WordKey, std::size_t> seen;
        for (const Source& source : sources_.training) {
            if (source.lemmaWeight <= 0) continue;
            for (const GoldSentence& sentence : source.corpus)
                addMarkedWords(sentence, seen, examples);
        }
    }

    void addMarkedWords(const GoldSentence& sentence, std::map<WordKey, std::size_t>& seen,
                        std::vector<LemmaExample>& examples) const {
        const std::vector<TaggedWord> words = taggedWordsOf(sentence);
        for (std::size_t at = 0; at < words.size(); ++at) {
            const auto& lemma = sentence.tokens[at].lemma;
            const WordKey key = markedKey(words[at].form, words[at].pos);
            if (!lemma || !marked_.contains(key) || ++seen[key] > mostOccurrences) continue;
            const auto found = ruleBetween(words[at].form, *lemma, words[at].pos, counts_.caseRules());
            const std::uint32_t label = found ? numbers_.labelOf(found->rule) : 0;
            if (label == 0) continue;
            examples.push_back(exampleOf(words[at].form, words[at].pos, label));
            addNeighbours(words, at, examples.back());
        }
    }

    void addNeighbours(const std::vector<TaggedWord>& words, std::size_t at, LemmaExample& example) const {
        const auto neighbour = [&](std::size_t place) {
            return place < words.size() ? lemmaNeighbourOf(words[place], counts_.caseRules())
                                        : LemmaNeighbour{};
        };
        const LemmaTraits traits = lemmaTraitsOf(FoldedWord(words[at].form, counts_.caseRules()));
        forEachNeighbourFeature(traits, words[at].pos, neighbour(at - 1), neighbour(at + 1),
                                [&](std::uint64_t feature) { example.features.push_back(feature); });
    }

    [[nodiscard]] std::size_t roomForRules() const {
        return roomForWeights(sources_.language) - roomForCasings;
    }

    void learnRules() {
        std::vector<LemmaExample> examples;
        addTreebankWords(examples);
        addLexiconWords(examples);
        addMarkedWords(examples);
        log_ << sources_.language << ": " << examples.size() << " examples\n";
        const auto fits = [&](std::uint32_t label, std::uint32_t size) {
            return numbers_.rules()[label - firstRuleLabel].fits(size);
        };
        LemmaPerceptron perceptron(firstRuleLabel + numbers_.rules().size(), firstRuleLabel, roomForRules(),
                                   fits);
        perceptron.learn(examples, rounds);
        perceptron.prune();
        const std::size_t mistakes = perceptron.mistakes();
        perceptron.learn(examples, roundsAfterPruning);
        log_ << sources_.language << ": " << mistakes << " mistakes, " << perceptron.mistakes()
             << " after pruning\n";
        takeWeights(perceptron);
        for (const WordKey& word : marked_) {
            const LemmaTraits traits = lemmaTraitsOf(FoldedWord(word.form, counts_.caseRules()));
            weights_.push_back({neighbourMarkOf(traits, word.pos), neighbourMark, LemmaWeight::largest});
        }
    }

    void learnCasings() {
        std::vector<LemmaExample> examples;
        for (const auto& [placed, casings] : counts_.casings()) {
            const LemmaTraits traits = lemmaTraitsOf(FoldedWord(placed.word.form, counts_.caseRules()));
            LemmaExample example;
            forEachCasingFeature(traits, placed.word.pos, placed.place,
                                 [&](std::uint64_t feature) { example.features.push_back(feature); });
            example.gold = static_cast<std::uint32_t>(mostOf(casings));
            example.weight = weightOf(casings.at(mostOf(casings)));
            examples.push_back(std::move(example));
        }
        LemmaPerceptron perceptron(lemmaCasingCount, 0, roomForCasings,
                                   [](std::uint32_t, std::uint32_t) { return true; });
        perceptron.learn(examples, rounds);
        perceptron.prune();
        perceptron.learn(examples, roundsAfterPruning);
        takeWeights(perceptron);
    }

    // Rules and casings are never added up, so each has a scale of its own.
    void takeWeights(const LemmaPerceptron& perceptron) {
        std::vector<LearntWeight> learnt = perceptron.weights();
        const double scale = scaleOf(learnt);
        for (LearntWeight& weight : learnt) {
            weight.value *= scale;
            weights_.push_back(weight);
        }
    }

    const LanguageSources& sources_;
    std::ostream& log_;
    LemmaCounts counts_;
    std::vector<LexiconLemma> lexicon_;
    RuleNumbers numbers_;
    std::set<WordKey> marked_;
    std::vector<LearntWeight> weights_;
};

} // namespace

void trainLemmas(const LanguageSources& sources, const std::filesystem::path& corpora, ModelFileWriter& file,
                 std::ostream& log) {
    LemmaTrainer(sources, log).train(corpora, file);
}

} // namespace lexiform::train
