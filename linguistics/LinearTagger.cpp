#include "linguistics/LinearTagger.h"

#include <algorithm>
#include <limits>

namespace lexiform::linguistics {

LinearTagger::LinearTagger(const LinearModel& model) : model_(model), cache_(model) {}

LexiconEntry LinearTagger::entryOf(std::string_view word) {
    cache_.makeRoom(1);
    return cache_[cache_.indexOf(word)].traits.entry;
}

void LinearTagger::tag(std::span<const std::string_view> words, std::span<WordLabels> labels) {
    if (words.empty()) return;
    scoreWords(words);
    tagPartsOfSpeech(labels);
    const auto isProper = [](const WordLabels& label) { return label.pos == UniversalPos::PROPN; };
    if (std::none_of(labels.begin(), labels.end(), isProper)) return;
    addNameFeatures(labels);
    tagNames(labels);
}

Context LinearTagger::contextAt(std::size_t word) const {
    Context context;
    for (std::size_t i = 0; i < context.size(); ++i)
        context[i] = &cache_[indices_[word + i]].traits;
    return context;
}

void LinearTagger::scoreWords(std::span<const std::string_view> words) {
    cache_.makeRoom(words.size());
    indices_.assign(words.size() + 2 * contextReach, WordCache::boundary());
    std::vector<Casing> casings(words.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
        indices_[i + contextReach] = cache_.indexOf(words[i]);
        casings[i] = cache_[indices_[i + contextReach]].traits.casing;
    }
    const SentenceTraits sentence = sentenceTraitsOf(casings);
    scores_.assign(words.size(), Scores{});
    for (std::size_t i = 0; i < words.size(); ++i) {
        Scores& scores = scores_[i];
        for (std::size_t place = 0; place < 2 * contextReach + 1; ++place) {
            const ScoredWord::Scores& known = cache_[indices_[i + place]].scores[place];
            for (std::size_t label = 0; label < scores.size(); ++label)
                scores[label] += known[label];
        }
        forEachContextFeature(contextAt(i), i == 0, sentence,
                              [&](std::uint64_t feature) { model_.add(feature, scores.data()); });
    }
}

void LinearTagger::tagPartsOfSpeech(std::span<WordLabels> labels) {
    const std::size_t count = labels.size();
    back_.resize(count);
    std::array<std::int32_t, universalPosCount> best{};
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t ambiguity = cache_[indices_[i + contextReach]].traits.entry.ambiguity;
        std::array<std::int32_t, universalPosCount> next{};
        if (i == 0) {
            const std::int16_t* start = model_.posTransition(ambiguity, universalPosCount);
            std::copy(start, start + universalPosCount, next.begin());
        } else {
            next.fill(std::numeric_limits<std::int32_t>::min());
            for (std::size_t previous = 0; previous < universalPosCount; ++previous) {
                const std::int16_t* step = model_.posTransition(ambiguity, previous);
                for (std::size_t pos = 0; pos < universalPosCount; ++pos) {
                    const std::int32_t score = best[previous] + step[pos];
                    const bool better = score > next[pos];
                    next[pos] = better ? score : next[pos];
                    back_[i][pos] = better ? static_cast<std::uint8_t>(previous) : back_[i][pos];
                }
            }
        }
        for (std::size_t pos = 0; pos < universalPosCount; ++pos)
            best[pos] = next[pos] + scores_[i][pos];
    }
    auto pos = static_cast<std::uint8_t>(std::max_element(best.begin(), best.end()) - best.begin());
    for (std::size_t i = count; i-- > 0; pos = back_[i][pos])
        labels[i].pos = static_cast<UniversalPos>(pos);
}

void LinearTagger::addNameFeatures(std::span<const WordLabels> labels) {
    const auto posAt = [&](std::size_t i) { return i < labels.size() ? labels[i].pos : UniversalPos::PUNCT; };
    for (std::size_t i = 0; i < labels.size(); ++i)
        // The word before the first is out of range by wrapping around.
        forEachNameFeature(contextAt(i), {posAt(i - 1), posAt(i), posAt(i + 1)},
                           [&](std::uint64_t feature) { model_.add(feature, scores_[i].data()); });
}

void LinearTagger::tagNames(std::span<WordLabels> labels) {
    constexpr std::int32_t impossible = std::numeric_limits<std::int32_t>::min() / 2;
    const std::size_t count = labels.size();
    std::array<std::int32_t, nameLabelCount> best;
    best.fill(impossible);
    best[0] = 0; // what stands before a sentence is outside every name
    for (std::size_t i = 0; i < count; ++i) {
        std::array<std::int32_t, nameLabelCount> next;
        for (std::size_t label = 0; label < nameLabelCount; ++label) {
            next[label] = impossible;
            for (std::size_t previous = 0; previous < nameLabelCount; ++previous) {
                if (!mayFollow(static_cast<NameLabel>(previous), static_cast<NameLabel>(label))) continue;
                const std::int32_t score = best[previous] + model_.nameTransition(previous)[label];
                if (score <= next[label]) continue;
                next[label] = score;
                back_[i][label] = static_cast<std::uint8_t>(previous);
            }
            next[label] = std::max(next[label] + scores_[i][universalPosCount + label], impossible);
        }
        best = next;
    }
    auto label = static_cast<std::uint8_t>(std::max_element(best.begin(), best.end()) - best.begin());
    for (std::size_t i = count; i-- > 0; label = back_[i][label])
        labels[i].name = static_cast<NameLabel>(label);
}

SentenceTraits sentenceTraitsOf(std::span<const Casing> casings) {
    const auto lower = std::count(casings.begin(), casings.end(), Casing::lower);
    const auto capitals = std::count_if(casings.begin(), casings.end(), [](Casing casing) {
        return casing == Casing::capitalised || casing == Casing::upper;
    });
    return {lower >= capitals};
}

} // namespace lexiform::linguistics
