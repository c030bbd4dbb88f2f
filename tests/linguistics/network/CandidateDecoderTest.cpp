#include "linguistics/network/CandidateDecoder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace lexiform::linguistics {
namespace {

using Scores = CandidateDecoder::Scores;
using Transitions = CandidateDecoder::Transitions;
constexpr std::size_t labels = CandidateDecoder::labels;

int between(int lowest, int highest, std::mt19937& random) {
    return lowest + static_cast<int>(random() % static_cast<unsigned>(highest - lowest + 1));
}

Transitions transitionsUpTo(int limit, std::mt19937& random) {
    Transitions transitions{};
    for (auto& row : transitions)
        for (std::int16_t& value : row)
            value = static_cast<std::int16_t>(between(-limit, limit, random));
    return transitions;
}

std::vector<Scores> scoresUpTo(int limit, std::size_t words, std::mt19937& random) {
    std::vector<Scores> scores(words);
    for (Scores& word : scores)
        for (std::int16_t& value : word)
            value = static_cast<std::int16_t>(between(-limit, limit, random));
    return scores;
}

long totalOf(std::span<const std::uint8_t> sequence, const std::vector<Scores>& scores,
             const Transitions& transitions) {
    long total = 0;
    for (std::size_t i = 0; i < sequence.size(); ++i)
        total += transitions[i == 0 ? labels : sequence[i - 1]][sequence[i]] + scores[i][sequence[i]];
    return total;
}

// The score of the best sequence, all labels looked at.
long bestTotal(const std::vector<Scores>& scores, const Transitions& transitions) {
    std::vector<long> totals(labels, 0);
    for (std::size_t i = 0; i < scores.size(); ++i) {
        std::vector<long> next(labels, -1000000000);
        for (std::size_t label = 0; label < labels; ++label) {
            for (std::size_t before = 0; before < labels; ++before)
                next[label] = std::max(next[label], i == 0 ? long{transitions[labels][label]}
                                                           : totals[before] + transitions[before][label]);
            next[label] += scores[i][label];
        }
        totals = next;
    }
    return *std::max_element(totals.begin(), totals.end());
}

TEST(CandidateDecoder, findsASequenceAsGoodAsTheBest) {
    std::mt19937 random(1);
    for (int round = 0; round < 200; ++round) {
        const Transitions transitions = transitionsUpTo(round % 2 == 0 ? 200 : 4000, random);
        const auto scores = scoresUpTo(round % 3 == 0 ? 20000 : 1000, 1 + random() % 12, random);
        std::vector<std::uint8_t> best(scores.size());
        CandidateDecoder(transitions).decode(scores, best);
        EXPECT_EQ(totalOf(best, scores, transitions), bestTotal(scores, transitions));
    }
}

TEST(CandidateDecoder, staysExactInAnEndlessSentence) {
    std::mt19937 random(2);
    const Transitions transitions = transitionsUpTo(4000, random);
    const auto scores = scoresUpTo(2000, 50000, random);
    std::vector<std::uint8_t> best(scores.size());
    CandidateDecoder(transitions).decode(scores, best);
    EXPECT_EQ(totalOf(best, scores, transitions), bestTotal(scores, transitions));
}

TEST(CandidateDecoder, givesNothingForNoWords) {
    std::mt19937 random(3);
    CandidateDecoder(transitionsUpTo(100, random)).decode({}, {});
}

} // namespace
} // namespace lexiform::linguistics
