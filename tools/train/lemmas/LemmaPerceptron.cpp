#include "tools/train/lemmas/LemmaPerceptron.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>
#include <tuple>

namespace lexiform::train {

namespace {

// A feature of fewer examples teaches little about others, and is for where there is room to spare.
constexpr std::uint32_t leastExamples = 3;
// What an example of weight 1 changes a weight by. Averages are kept as integers of this unit.
constexpr std::int32_t unit = 64;
// A right label must beat its rival by this much: roundings of the weights must not turn it.
constexpr std::int32_t margin = 8 * unit;

} // namespace

LemmaPerceptron::LemmaPerceptron(std::size_t labelCount, std::uint32_t fallback, std::size_t room, Fits fits)
    : fallback_(fallback), fits_(std::move(fits)), scores_(labelCount), room_(room) {}

std::vector<LemmaPerceptron::Prepared> LemmaPerceptron::prepared(std::span<const LemmaExample> examples) {
    std::vector<Prepared> all;
    all.reserve(examples.size());
    std::unordered_map<std::uint64_t, std::uint32_t> counts;
    const bool crowded = examples.size() * 2 > room_;
    for (const LemmaExample& example : examples)
        for (const std::uint64_t feature : example.features)
            ++counts[feature];
    for (const LemmaExample& example : examples) {
        Prepared ready{{}, example.gold, example.wordSize, example.weight};
        ready.rows.reserve(example.features.size());
        for (const std::uint64_t feature : example.features) {
            // What is peculiar to one word is left to the word as a whole: spread over many light weights
            // it would not outlast the pruning.
            if (crowded && counts[feature] < leastExamples && feature != example.features.front()) continue;
            const auto [at, isNew] = rowOf_.try_emplace(feature, static_cast<std::uint32_t>(rows_.size()));
            if (isNew) {
                rows_.emplace_back();
                features_.push_back(feature);
            }
            ready.rows.push_back(at->second);
        }
        all.push_back(std::move(ready));
    }
    return all;
}

void LemmaPerceptron::learn(std::span<const LemmaExample> examples, int rounds) {
    const std::vector<Prepared> all = prepared(examples);
    std::vector<std::uint32_t> order(all.size());
    std::iota(order.begin(), order.end(), 0U);
    std::mt19937 random(1);
    for (int round = 0; round < rounds; ++round) {
        mistakes_ = 0;
        for (std::size_t i = order.size(); i > 1; --i)
            std::swap(order[i - 1], order[random() % i]);
        for (const std::uint32_t index : order)
            learnFrom(all[index]);
    }
}

void LemmaPerceptron::learnFrom(const Prepared& example) {
    score(example);
    const std::uint32_t best = rival(example);
    if (best != example.gold && scores_[best] >= scores_[example.gold]) ++mistakes_;
    const bool right = best == example.gold || scores_[example.gold] - scores_[best] >= margin;
    for (const std::uint32_t label : touched_)
        scores_[label] = 0;
    touched_.clear();
    ++now_;
    if (right) return;
    change(example, example.gold, example.weight * unit);
    change(example, best, -example.weight * unit);
}

void LemmaPerceptron::score(const Prepared& example) {
    for (const std::uint32_t row : example.rows)
        for (const Cell& cell : rows_[row]) {
            if (scores_[cell.label] == 0) touched_.push_back(cell.label);
            scores_[cell.label] += cell.value;
        }
}

// The best label but for the right one; the right one itself where no other is known.
std::uint32_t LemmaPerceptron::rival(const Prepared& example) const {
    std::uint32_t best = fallback_;
    for (const std::uint32_t label : touched_) {
        if (label == example.gold || !fits_(label, example.wordSize)) continue;
        if (best == example.gold || scores_[label] > scores_[best] ||
            (scores_[label] == scores_[best] && label < best))
            best = label;
    }
    return best;
}

void LemmaPerceptron::change(const Prepared& example, std::uint32_t label, std::int32_t by) {
    for (const std::uint32_t row : example.rows) {
        Row& cells = rows_[row];
        auto cell = std::find_if(cells.begin(), cells.end(),
                                 [&](const Cell& candidate) { return candidate.label == label; });
        if (cell == cells.end()) {
            if (pruned_ && (row != example.rows.front() || room_ == 0)) continue;
            if (pruned_) --room_;
            cell = cells.insert(cells.end(), Cell{label, 0, 0, now_});
        }
        cell->total += cell->value * (now_ - cell->since);
        cell->since = now_;
        cell->value += by;
    }
}

double LemmaPerceptron::average(const Cell& cell) const {
    const std::int64_t total = cell.total + cell.value * (now_ - cell.since);
    return static_cast<double>(total) / static_cast<double>(now_);
}

void LemmaPerceptron::prune() {
    std::vector<double> sizes;
    for (const Row& cells : rows_)
        for (const Cell& cell : cells)
            sizes.push_back(std::abs(average(cell)));
    const std::size_t kept = room_ * 3 / 4;
    double least = 0;
    if (sizes.size() > kept) {
        std::nth_element(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(kept), sizes.end(),
                         std::greater<>());
        least = sizes[kept];
    }
    for (Row& cells : rows_) {
        std::erase_if(cells, [&](const Cell& cell) { return std::abs(average(cell)) <= least; });
        for (Cell& cell : cells) {
            cell.value = static_cast<std::int32_t>(std::lround(average(cell)));
            cell.total = 0;
            cell.since = 0;
        }
    }
    now_ = 1;
    pruned_ = true;
    room_ -= kept;
}

std::vector<LearntWeight> LemmaPerceptron::weights() const {
    std::vector<LearntWeight> all;
    for (std::size_t row = 0; row < rows_.size(); ++row)
        for (const Cell& cell : rows_[row])
            if (const double value = average(cell); value != 0)
                all.push_back({features_[row], cell.label, value});
    std::sort(all.begin(), all.end(), [](const LearntWeight& a, const LearntWeight& b) {
        return std::tie(a.feature, a.label) < std::tie(b.feature, b.label);
    });
    return all;
}

} // namespace lexiform::train
