#include "tools/train/lemmas/wholeWords.h"

#include "linguistics/lemmas/LemmaFormat.h"
#include "tools/train/lemmas/LemmaModelWriter.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <unordered_map>
#include <unordered_set>

namespace lexiform::train {

namespace {

using namespace linguistics;

/// Scores as the engine adds them up, over the weights that they come from.
class RoundedScores {
public:
    explicit RoundedScores(std::vector<LearntWeight>& weights) : weights_(weights) {
        for (std::size_t i = 0; i < weights.size(); ++i)
            places_[weights[i].feature].push_back(i);
    }

    [[nodiscard]] std::map<std::uint32_t, int> of(const LemmaExample& example) const {
        std::map<std::uint32_t, int> scores;
        for (const std::uint64_t feature : example.features) {
            const auto found = places_.find(feature);
            if (found == places_.end()) continue;
            for (const std::size_t place : found->second)
                scores[weights_[place].label] += roundedWeight(weights_[place].value);
        }
        return scores;
    }

    /// The weight of `feature` for `label`, which is made if need be; null where there is none and no room.
    LearntWeight* weightOf(std::uint64_t feature, std::uint32_t label, std::size_t& room) {
        std::vector<std::size_t>& own = places_[feature];
        for (const std::size_t place : own)
            if (weights_[place].label == label) return &weights_[place];
        if (room == 0) return nullptr;
        --room;
        own.push_back(weights_.size());
        return &weights_.emplace_back(LearntWeight{feature, label, 0});
    }

private:
    std::vector<LearntWeight>& weights_;
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> places_; ///< by feature
};

// By how much the best wrong label beats the right one of `example`, and 1 where it wins a tie.
int lackOf(const LemmaExample& example, std::map<std::uint32_t, int> scores,
           const LemmaPerceptron::Fits& fits, std::uint32_t fallback) {
    scores.try_emplace(fallback, 0);
    const int gold = scores[example.gold];
    int lack = 0;
    for (const auto& [label, score] : scores)
        if (label != example.gold && (label == fallback || fits(label, example.wordSize)))
            lack = std::max(lack, score - gold + (label < example.gold ? 1 : 0));
    return lack;
}

} // namespace

void mendWholeWords(std::span<const LemmaExample> examples, const LemmaPerceptron::Fits& fits,
                    std::uint32_t fallback, std::size_t room, std::vector<LearntWeight>& weights) {
    std::vector<std::size_t> order(examples.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return examples[a].weight > examples[b].weight; });
    RoundedScores scores(weights);
    // Two ways to write a word may ask for two labels; what counts more is heard.
    std::unordered_set<std::uint64_t> heard;
    for (const std::size_t at : order) {
        const LemmaExample& example = examples[at];
        if (example.hasNeighbours || !heard.insert(example.features.front()).second) continue;
        const int lack = lackOf(example, scores.of(example), fits, fallback);
        if (lack <= 0) continue;
        LearntWeight* weight = scores.weightOf(example.features.front(), example.gold, room);
        if (weight != nullptr) weight->value = leastRoundedTo(roundedWeight(weight->value) + lack);
    }
}

} // namespace lexiform::train
