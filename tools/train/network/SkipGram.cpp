#include "tools/train/network/SkipGram.h"

#include "tools/train/network/Parameters.h"
#include "tools/train/network/VectorClones.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

namespace lexiform::train {

namespace {

constexpr std::array<int, 4> places = {-2, -1, 1, 2};
constexpr int negatives = 5;
constexpr std::size_t drawTableSize = std::size_t{1} << 20;
// A word that makes up a larger share of the text is passed over now and then.
constexpr double commonShare = 5e-4;

LEXIFORM_VECTOR_CLONES
float product(const float* a, const float* b, std::size_t count) {
    constexpr std::size_t lanes = 16;
    float sums[lanes] = {};
    for (std::size_t i = 0; i + lanes <= count; i += lanes)
        for (std::size_t lane = 0; lane < lanes; ++lane)
            sums[lane] += a[i + lane] * b[i + lane];
    float sum = 0;
    for (const float one : sums)
        sum += one;
    return sum;
}

LEXIFORM_VECTOR_CLONES
void pull(const float* word, float* LEXIFORM_ALONE context, float* LEXIFORM_ALONE change, float amount,
          std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        change[i] += amount * context[i];
        context[i] += amount * word[i];
    }
}

std::vector<std::uint32_t> countsOf(std::span<const std::uint32_t> text, std::size_t words) {
    std::vector<std::uint32_t> counts(words, 0);
    for (const std::uint32_t word : text)
        ++counts[word];
    return counts;
}

// Each word as often as the power 3/4 of its count has it, so that a draw is a look-up.
std::vector<std::uint32_t> drawTableOf(const std::vector<std::uint32_t>& counts) {
    std::vector<double> weights;
    double all = 0;
    for (const std::uint32_t count : counts)
        all += weights.emplace_back(std::pow(static_cast<double>(count), 0.75));
    std::vector<std::uint32_t> table;
    table.reserve(drawTableSize);
    double sum = 0;
    for (std::size_t word = 0; word < weights.size(); ++word) {
        sum += weights[word];
        while (static_cast<double>(table.size()) < sum / all * static_cast<double>(drawTableSize) &&
               table.size() < drawTableSize)
            table.push_back(static_cast<std::uint32_t>(word));
    }
    return table;
}

/// Learns the vectors.
class SkipGram {
public:
    SkipGram(std::span<const std::uint32_t> text, std::size_t words, const SkipGramOptions& options)
        : text_(text), options_(options), random_(options.seed), counts_(countsOf(text, words)),
          drawTable_(drawTableOf(counts_)), words_(words, options.width), change_(options.width) {
        for (float& value : words_.values())
            value = (uniform(random_) - 0.5F) / static_cast<float>(options.width);
        for (Matrix& context : contexts_)
            context.resize(words, options.width);
    }

    Matrix run() {
        const std::size_t steps = text_.size() * static_cast<std::size_t>(options_.passes);
        for (std::size_t step = 0; step < steps; ++step) {
            const float left = 1 - static_cast<float>(step) / static_cast<float>(steps);
            const std::size_t at = step % text_.size();
            if (text_[at] != 0 && !passesOver(text_[at])) learn(at, options_.rate * std::max(left, 0.01F));
        }
        return std::move(words_);
    }

private:
    bool passesOver(std::uint32_t word) {
        const double share = counts_[word] / static_cast<double>(text_.size());
        return share > commonShare && uniform(random_) > static_cast<float>(std::sqrt(commonShare / share));
    }

    void learn(std::size_t at, float rate) {
        float* word = words_.row(text_[at]);
        std::fill(change_.begin(), change_.end(), 0.0F);
        bool open[] = {true, true};
        for (const std::size_t p : {std::size_t{1}, std::size_t{0}, std::size_t{2}, std::size_t{3}}) {
            const std::ptrdiff_t other = static_cast<std::ptrdiff_t>(at) + places[p];
            const bool after = places[p] > 0;
            if (!open[after ? 1 : 0] || other < 0 || other >= static_cast<std::ptrdiff_t>(text_.size()))
                continue;
            const std::uint32_t neighbour = text_[static_cast<std::size_t>(other)];
            learnPair(word, contexts_[p], neighbour, rate);
            if (neighbour == 0) open[after ? 1 : 0] = false; // nothing beyond a sentence
        }
        for (std::size_t i = 0; i < change_.size(); ++i)
            word[i] += change_[i];
    }

    void learnPair(float* word, Matrix& context, std::uint32_t neighbour, float rate) {
        for (int n = 0; n <= negatives; ++n) {
            const std::uint32_t other = n == 0 ? neighbour : drawTable_[random_() & (drawTableSize - 1)];
            if (n > 0 && other == neighbour) continue;
            float* row = context.row(other);
            const float score = product(word, row, options_.width);
            const float likely = 1 / (1 + std::exp(-std::clamp(score, -12.0F, 12.0F)));
            pull(word, row, change_.data(), rate * ((n == 0 ? 1.0F : 0.0F) - likely), options_.width);
        }
    }

    std::span<const std::uint32_t> text_;
    const SkipGramOptions& options_;
    std::mt19937 random_;
    std::vector<std::uint32_t> counts_;
    std::vector<std::uint32_t> drawTable_;
    Matrix words_;
    std::array<Matrix, places.size()> contexts_;
    std::vector<float> change_;
};

} // namespace

Matrix wordVectors(std::span<const std::uint32_t> text, std::size_t words, const SkipGramOptions& options) {
    return SkipGram(text, words, options).run();
}

} // namespace lexiform::train
