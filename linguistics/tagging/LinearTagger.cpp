#include "linguistics/tagging/LinearTagger.h"

#include <algorithm>

namespace lexiform::linguistics {

LinearTagger::LinearTagger(const LinearModel& model) : model_(model), cache_(model) {}

LexiconEntry LinearTagger::entryOf(std::string_view word) {
    cache_.makeRoom(1);
    return cache_[cache_.indexOf(word)].traits.entry;
}

void LinearTagger::tag(std::span<const std::string_view> words, std::span<WordLabels> labels) {
    lookUp(words);
    scoreWords();
    tagPartsOfSpeech(labels);
}

void LinearTagger::lookUp(std::span<const std::string_view> words) {
    cache_.makeRoom(words.size());
    indices_.assign(words.size() + neighbourCount, WordCache::boundary());
    std::vector<Casing> casings(words.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
        indices_[i + contextReach] = cache_.indexOf(words[i]);
        casings[i] = cache_[indices_[i + contextReach]].traits.casing;
    }
    sentence_ = sentenceTraitsOf(casings);
}

Context LinearTagger::contextAt(std::size_t word) const {
    Context context;
    for (std::size_t i = 0; i < context.size(); ++i)
        context[i] = &cache_[indices_[word + i]].traits;
    return context;
}

void LinearTagger::scoreWords() {
    scores_.resize(indices_.size() - neighbourCount);
    for (std::size_t i = 0; i < scores_.size(); ++i) {
        ScoredWord::Scores sums{};
        for (std::size_t place = 0; place < neighbourCount + 1; ++place) {
            const ScoredWord::Scores& known = cache_[indices_[i + place]].scores[place];
            for (std::size_t label = 0; label < sums.size(); ++label)
                sums[label] = static_cast<std::int16_t>(sums[label] + known[label]);
        }
        forEachContextFeature(contextAt(i), i == 0, sentence_,
                              [&](std::uint64_t feature) { model_.add(feature, sums.data()); });
        scores_[i] = sums;
    }
}

void LinearTagger::tagPartsOfSpeech(std::span<WordLabels> labels) {
    best_.resize(labels.size());
    const auto emission = [&](std::size_t word) { return scores_[word].data(); };
    const auto transition = [&](std::size_t word, std::size_t previous) {
        const std::uint8_t ambiguity = cache_[indices_[word + contextReach]].traits.entry.ambiguity;
        return model_.posTransition(ambiguity, previous);
    };
    posDecoder_.decode(emission, transition, best_);
    for (std::size_t i = 0; i < labels.size(); ++i)
        labels[i] = {static_cast<UniversalPos>(best_[i]), NameLabel::outside};
}

SentenceTraits sentenceTraitsOf(std::span<const Casing> casings) {
    const auto lower = std::count(casings.begin(), casings.end(), Casing::lower);
    const auto capitals = std::count_if(casings.begin(), casings.end(), [](Casing casing) {
        return casing == Casing::capitalised || casing == Casing::upper;
    });
    return {lower >= capitals};
}

} // namespace lexiform::linguistics
