#include "linguistics/network/CandidateDecoder.h"

#include <algorithm>
#include <limits>

namespace lexiform::linguistics {

CandidateDecoder::CandidateDecoder(const Transitions& transitions) : transitions_(transitions) {
    for (std::size_t other = 0; other < labels; ++other)
        for (std::size_t label = 0; label < labels; ++label) {
            int to = std::numeric_limits<int>::min();
            for (const auto& row : transitions)
                to = std::max(to, row[label] - row[other]);
            int from = 0; // nothing comes after the last word
            for (std::size_t next = 0; next < labels; ++next)
                from = std::max(from, transitions[label][next] - transitions[other][next]);
            gains_[other][label] = to + from;
        }
}

void CandidateDecoder::decode(std::span<const Scores> scores, std::span<std::uint8_t> best) {
    candidates_.clear();
    starts_.clear();
    for (const Scores& word : scores) {
        const std::size_t before = starts_.empty() ? 0 : starts_.back();
        starts_.push_back(candidates_.size());
        addCandidates(word);
        connect(before, starts_.back());
    }
    if (best.empty()) return;
    const auto lastWord = candidates_.begin() + static_cast<std::ptrdiff_t>(starts_.back());
    const auto highest =
        std::max_element(lastWord, candidates_.end(),
                         [](const Candidate& a, const Candidate& b) { return a.total < b.total; });
    auto place = static_cast<std::size_t>(highest - lastWord);
    for (std::size_t word = best.size(); word-- > 0;) {
        const Candidate& candidate = candidates_[starts_[word] + place];
        best[word] = candidate.label;
        place = candidate.before;
    }
}

void CandidateDecoder::addCandidates(const Scores& scores) {
    std::size_t highest = 0;
    for (std::size_t label = 1; label < labels; ++label)
        if (scores[label] > scores[highest]) highest = label;
    const std::array<int, labels>& gains = gains_[highest];
    for (std::size_t label = 0; label < labels; ++label)
        if (label == highest || scores[label] + gains[label] >= scores[highest])
            candidates_.push_back({scores[label], static_cast<std::uint8_t>(label), 0});
}

// Totals are kept relative to the first of a word, so that they stay small however long a sentence is.
void CandidateDecoder::connect(std::size_t first, std::size_t middle) {
    for (std::size_t i = middle; i < candidates_.size(); ++i) {
        Candidate& candidate = candidates_[i];
        if (middle == first) {
            candidate.total += transitions_[labels][candidate.label];
            continue;
        }
        int highest = std::numeric_limits<int>::min();
        for (std::size_t before = first; before < middle; ++before) {
            const Candidate& other = candidates_[before];
            const int total = other.total + transitions_[other.label][candidate.label];
            if (total <= highest) continue;
            highest = total;
            candidate.before = static_cast<std::uint8_t>(before - first);
        }
        candidate.total += highest;
    }
    const int base = candidates_[middle].total;
    for (std::size_t i = middle; i < candidates_.size(); ++i)
        candidates_[i].total -= base;
}

} // namespace lexiform::linguistics
