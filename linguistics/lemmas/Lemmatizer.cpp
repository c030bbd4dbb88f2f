#include "linguistics/lemmas/Lemmatizer.h"

#include <algorithm>

namespace lexiform::linguistics {

Lemmatizer::Lemmatizer(const LemmaModel& model) : model_(model), scores_(model.labelCount()) {}

Lemmatizer::Answer Lemmatizer::lemmaOf(std::span<const TaggedWord> sentence, std::size_t at) {
    const auto [form, pos] = sentence[at];
    const FoldedWord word(form, model_.caseRules());
    if (word.size() == 0) return {std::string(form), false};
    const LemmaTraits traits = lemmaTraitsOf(word);
    const auto adding = [&](std::uint64_t feature) { add(feature); };
    forEachRuleFeature(traits, pos, adding);
    const bool marked = isMarked(traits, pos);
    if (marked) addNeighbours(traits, sentence, at);
    const std::size_t rule = bestRule(word.size());
    forget();
    forEachCasingFeature(traits, pos, placeOf(sentence, at), adding);
    const LemmaCasing casing = bestCasing();
    forget();
    std::string lemma = lemmaBy(model_.rule(rule), casing, word, model_.caseRules());
    return {lemma.empty() ? std::string(form) : std::move(lemma), marked};
}

bool Lemmatizer::isMarked(const LemmaTraits& traits, UniversalPos pos) const {
    bool marked = false;
    model_.forEachWeight(neighbourMarkOf(traits, pos),
                         [&](std::size_t label, int) { marked = marked || label == neighbourMark; });
    return marked;
}

LemmaNeighbour Lemmatizer::neighbourAt(std::span<const TaggedWord> sentence, std::size_t at) const {
    return at < sentence.size() ? lemmaNeighbourOf(sentence[at], model_.caseRules()) : LemmaNeighbour{};
}

void Lemmatizer::addNeighbours(const LemmaTraits& traits, std::span<const TaggedWord> sentence,
                               std::size_t at) {
    // Before the first word the place wraps round to one that no sentence has.
    forEachNeighbourFeature(traits, sentence[at].pos, neighbourAt(sentence, at - 1),
                            neighbourAt(sentence, at + 1), [&](std::uint64_t feature) { add(feature); });
}

void Lemmatizer::add(std::uint64_t feature) {
    model_.forEachWeight(feature, [&](std::size_t label, int weight) {
        if (scores_[label] == 0) touched_.push_back(static_cast<std::uint32_t>(label));
        scores_[label] += weight;
    });
}

std::size_t Lemmatizer::bestRule(std::size_t size) const {
    std::size_t best = firstRuleLabel;
    for (const std::uint32_t label : touched_) {
        if (label <= firstRuleLabel || !model_.rule(label).fits(size)) continue;
        const auto better = scores_[label] - scores_[best];
        if (better > 0 || (better == 0 && label < best)) best = label;
    }
    return best;
}

LemmaCasing Lemmatizer::bestCasing() const {
    const auto best = std::max_element(scores_.begin(), scores_.begin() + lemmaCasingCount);
    return static_cast<LemmaCasing>(best - scores_.begin());
}

void Lemmatizer::forget() {
    for (const std::uint32_t label : touched_)
        scores_[label] = 0;
    touched_.clear();
}

} // namespace lexiform::linguistics
