#include "linguistics/network/NetworkTagger.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// A text without sentence ends is tagged in pieces, so that memory stays bounded.
constexpr std::size_t wordsAtOnce = 4096;

enum Direction : std::size_t { forwards, backwards };

CandidateDecoder::Transitions posTransitionsOf(const NetworkModel& model) {
    CandidateDecoder::Transitions transitions{};
    for (std::size_t previous = 0; previous <= universalPosCount; ++previous)
        for (std::size_t next = 0; next < universalPosCount; ++next)
            transitions[previous][next] = model.posTransition(previous, next);
    return transitions;
}

} // namespace

NetworkTagger::NetworkTagger(const NetworkModel& model, const NetworkKernels& kernels)
    : model_(model), kernels_(kernels), cache_(model, kernels), posDecoder_(posTransitionsOf(model)) {
    setNameTransitions();
}

void NetworkTagger::setNameTransitions() {
    int highest = 0;
    for (std::size_t previous = 0; previous <= nameLabelCount; ++previous) {
        // What stands before a sentence is outside every name.
        const auto before = static_cast<NameLabel>(previous == nameLabelCount ? 0 : previous);
        for (std::size_t next = 0; next < nameLabelCount; ++next) {
            const bool allowed = mayFollow(before, static_cast<NameLabel>(next));
            nameTransitions_[previous][next] =
                allowed ? model_.nameTransition(previous, next) : NameDecoder::forbidden;
            highest = std::max<int>(highest, model_.nameTransition(previous, next));
        }
    }
    // A name of n words takes at most n + 1 other transitions than staying outside.
    const int outside = std::min(model_.nameTransition(0, 0), model_.nameTransition(nameLabelCount, 0));
    certainMargin_ = 2 * std::max(highest - outside, 0);
}

LexiconEntry NetworkTagger::entryOf(std::string_view word) {
    cache_.makeRoom(1);
    const NetworkEntry& entry = cache_.entryOf(cache_.indexOf(word));
    return {.ambiguity = entry.ambiguity, .lists = entry.lists};
}

void NetworkTagger::tag(std::span<const std::string_view> words, std::span<WordLabels> labels) {
    for (std::size_t start = 0; start < words.size(); start += wordsAtOnce) {
        const std::size_t count = std::min(wordsAtOnce, words.size() - start);
        tagPiece(words.subspan(start, count), labels.subspan(start, count));
    }
}

void NetworkTagger::tagPiece(std::span<const std::string_view> words, std::span<WordLabels> labels) {
    lookUp(words);
    run(words.size());
    tagPartsOfSpeech(labels);
    tagNames(labels);
}

void NetworkTagger::lookUp(std::span<const std::string_view> words) {
    cache_.makeRoom(words.size());
    indices_.assign(words.size() + 2, ProjectionCache::boundary());
    for (std::size_t i = 0; i < words.size(); ++i)
        indices_[i + 1] = cache_.indexOf(words[i]);
}

void NetworkTagger::run(std::size_t words) {
    outputs_.resize(words);
    scores_.resize(words);
    states_.fill(0);
    for (std::size_t word = 0; word < words; ++word)
        advance(word, forwards);
    states_.fill(0);
    for (std::size_t word = words; word-- > 0;)
        advance(word, backwards);
    for (std::size_t word = 0; word < words; ++word)
        kernels_.score(outputs_[word].data(), model_.scoreWeights(), model_.scoreBias(), model_.scoreShift(),
                       scores_[word].data());
}

void NetworkTagger::advance(std::size_t word, std::size_t direction) {
    const std::size_t gates = direction * directionGates;
    kernels_.advance(cache_.projectionOf(indices_[word]) + gates,
                     cache_.projectionOf(indices_[word + 1]) + networkGates + gates,
                     cache_.projectionOf(indices_[word + 2]) + 2 * networkGates + gates, states_.data(),
                     outputs_[word].data() + direction * networkUnits);
}

void NetworkTagger::tagPartsOfSpeech(std::span<WordLabels> labels) {
    best_.resize(labels.size());
    posDecoder_.decode(scores_, best_);
    for (std::size_t i = 0; i < labels.size(); ++i)
        labels[i] = {static_cast<UniversalPos>(best_[i]), NameLabel::outside};
}

bool NetworkTagger::holdsNoName() const {
    return std::all_of(scores_.begin(), scores_.end(), [&](const auto& scores) {
        const auto outside = scores.begin() + universalPosCount;
        return *outside - *std::max_element(outside + 1, scores.end()) > certainMargin_;
    });
}

void NetworkTagger::tagNames(std::span<WordLabels> labels) {
    if (holdsNoName()) return;
    nameDecoder_.decode([&](std::size_t word) { return scores_[word].data() + universalPosCount; },
                        [&](std::size_t, std::size_t previous) { return nameTransitions_[previous].data(); },
                        best_);
    for (std::size_t i = 0; i < labels.size(); ++i)
        labels[i].name = static_cast<NameLabel>(best_[i]);
}

} // namespace lexiform::linguistics
