#include "tools/train/lemmas/trainLemmas.h"

#include "linguistics/lemmas/LemmaFormat.h"
#include "tools/train/lemmas/LemmaCounts.h"
#include "tools/train/lemmas/LemmaExamples.h"
#include "tools/train/lemmas/LemmaLexicon.h"
#include "tools/train/lemmas/LemmaModelWriter.h"
#include "tools/train/lemmas/LemmaPerceptron.h"
#include "tools/train/lemmas/LexiconFilter.h"
#include "tools/train/lemmas/MarkedWords.h"
#include "tools/train/lemmas/RuleFinder.h"
#include "tools/train/lemmas/RuleNumbers.h"
#include "tools/train/lemmas/wholeWords.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lexiform::train {

namespace {

using namespace linguistics;

// Weights for which there is room, four bytes and a half each: more for the languages that have larger
// models, and where words have so many forms that the accuracy still grows with it.
constexpr std::size_t roomForWeights(std::string_view language) {
    constexpr std::array<std::string_view, 10> roomy = {"en", "de", "fr", "es", "it",
                                                        "pt", "ru", "tr", "fi", "id"};
    return std::find(roomy.begin(), roomy.end(), language) != roomy.end() ? 60'000 : 40'000;
}
constexpr std::size_t roomForCasings = 4'000, roomForMending = 3'000;

constexpr int rounds = 8, roundsAfterPruning = 6;

// Where no treebank has lemmas, those of the lists are counted in them, and the words that no list knows show
// what is left as it is.
void countByLexicon(const LanguageSources& sources, const std::vector<LexiconLemma>& lexicon,
                    LemmaCounts& counts) {
    LemmaCounts::Lexicon known;
    for (const LexiconLemma& line : lexicon)
        known[{line.form, line.pos}] = line.lemma;
    for (const Source& source : sources.training)
        if (source.tagWeight > 0) counts.addByLexicon(source.corpus, known);
}

RuleNumbers numberedRules(const LemmaCounts& counts, const std::vector<LexiconLemma>& lexicon) {
    RuleNumbers numbers;
    for (const auto& [word, rules] : counts.rules())
        for (const auto& [rule, count] : rules)
            numbers.count(rule, count);
    for (const LexiconLemma& line : lexicon)
        if (const auto found = ruleBetween(line.form, line.lemma, line.pos, counts.caseRules()))
            numbers.count(found->rule, 0);
    numbers.number();
    return numbers;
}

/// Learns the weights of a model.
class WeightTrainer {
public:
    WeightTrainer(std::string_view language, std::ostream& log) : language_(language), log_(log) {}

    void learnRules(const std::vector<LemmaExample>& examples, const std::vector<LemmaRule>& rules) {
        log_ << language_ << ": " << examples.size() << " examples\n";
        const std::size_t room = roomForWeights(language_) - roomForCasings;
        const LemmaPerceptron::Fits fits = [&](std::uint32_t label, std::uint32_t size) {
            return rules[label - firstRuleLabel].fits(size);
        };
        LemmaPerceptron perceptron(firstRuleLabel + rules.size(), firstRuleLabel, room - roomForMending,
                                   fits);
        perceptron.learn(examples, rounds);
        perceptron.prune();
        const std::size_t mistakes = perceptron.mistakes();
        perceptron.learn(examples, roundsAfterPruning);
        log_ << language_ << ": " << mistakes << " mistakes, " << perceptron.mistakes() << " after pruning\n";
        take(perceptron);
        const std::size_t learnt = weights_.size();
        mendWholeWords(examples, fits, firstRuleLabel, room - std::min(room, learnt), weights_);
        log_ << language_ << ": " << weights_.size() - learnt << " words mended\n";
    }

    void mark(const MarkedWords& marked, CaseRules caseRules) {
        for (const WordKey& word : marked.words()) {
            const LemmaTraits traits = lemmaTraitsOf(FoldedWord(word.form, caseRules));
            weights_.push_back({neighbourMarkOf(traits, word.pos), neighbourMark, LemmaWeight::largest});
        }
    }

    void learnCasings(const std::vector<LemmaExample>& examples) {
        LemmaPerceptron perceptron(lemmaCasingCount, 0, roomForCasings,
                                   [](std::uint32_t, std::uint32_t) { return true; });
        perceptron.learn(examples, rounds);
        perceptron.prune();
        perceptron.learn(examples, roundsAfterPruning);
        take(perceptron);
    }

    [[nodiscard]] const std::vector<LearntWeight>& weights() const { return weights_; }

private:
    // Rules and casings are never added up, so each has a scale of its own.
    void take(const LemmaPerceptron& perceptron) {
        std::vector<LearntWeight> learnt = perceptron.weights();
        const double scale = scaleOf(learnt);
        for (LearntWeight& weight : learnt) {
            weight.value *= scale;
            weights_.push_back(weight);
        }
    }

    std::string_view language_;
    std::ostream& log_;
    std::vector<LearntWeight> weights_;
};

} // namespace

void trainLemmas(const LanguageSources& sources, const std::filesystem::path& corpora, ModelFileWriter& file,
                 std::ostream& log) {
    LemmaCounts counts(caseRulesOf(sources.language));
    for (const Source& source : sources.training)
        if (source.lemmaWeight > 0) counts.add(source.corpus, source.lemmaWeight);
    const auto lexicon = filteredLexicon(readLemmaLexicon(sources.language, corpora),
                                         readFrequentWords(sources.language, corpora), counts, log);
    if (counts.rules().empty()) countByLexicon(sources, lexicon, counts);
    const RuleNumbers numbers = numberedRules(counts, lexicon);
    const MarkedWords marked(counts, numbers);

    WeightTrainer trainer(sources.language, log);
    trainer.learnRules(ruleExamples(sources, counts, lexicon, numbers, marked), numbers.rules());
    trainer.mark(marked, counts.caseRules());
    trainer.learnCasings(casingExamples(counts));
    writeLemmas(numbers.rules(), trainer.weights(), file);
    log << sources.language << ": " << numbers.rules().size() << " rules, " << marked.words().size()
        << " words with neighbours, " << trainer.weights().size() << " weights\n";
}

} // namespace lexiform::train
