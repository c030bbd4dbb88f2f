#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lexiform::linguistics {

/// Finds the best sequence of labels by dynamic programming (Viterbi 1967, "Error bounds for
/// convolutional codes"), given what each label scores at each word and after each label. Scores are
/// kept relative to the best and fit 16 bits, so that several are handled at once; which label a score
/// came from is found again on the way back, for one label of each word.
///
/// `labels` is how many labels there are, `width` the length of a row of scores.
template <std::size_t labels, std::size_t width>
class ChainDecoder {
public:
    using Row = std::array<std::int16_t, width>;

    /// A transition that is never taken: no sequence without it scores as low.
    static constexpr std::int16_t forbidden = -12000;

    /// Sets `best`, one label for each word. `emission(word)` points to `labels` scores;
    /// `transition(word, previous)` to `width` scores of the labels of `word` after `previous`, where
    /// `previous` is `labels` for the first word, no further from zero than 4000 unless forbidden.
    template <typename Emission, typename Transition>
    void decode(Emission emission, Transition transition, std::span<std::uint8_t> best) {
        if (best.empty()) return;
        rows_.resize(best.size());
        for (std::size_t word = 0; word < best.size(); ++word) {
            Row& row = rows_[word];
            if (word == 0)
                std::copy_n(transition(0, labels), width, row.begin());
            else
                arrive(row, rows_[word - 1],
                       [&](std::size_t previous) { return transition(word, previous); });
            add(row, emission(word));
        }
        const Row& last = rows_[best.size() - 1];
        best.back() =
            static_cast<std::uint8_t>(std::max_element(last.begin(), last.begin() + labels) - last.begin());
        for (std::size_t word = best.size() - 1; word > 0; --word)
            best[word - 1] = cameFrom(rows_[word - 1], [&](std::size_t previous) {
                return transition(word, previous)[best[word]];
            });
    }

private:
    // Further behind the best than this, a label cannot win any more.
    static constexpr int furthestBehind = -10000;
    static constexpr int lowestEmission = -6000;

    template <typename Transition>
    static void arrive(Row& row, const Row& before, Transition transition) {
        row.fill(std::int16_t{-32768});
        for (std::size_t previous = 0; previous < labels; ++previous) {
            const std::int16_t* step = transition(previous);
            const std::int16_t base = before[previous];
            for (std::size_t label = 0; label < width; ++label) {
                const auto score = static_cast<std::int16_t>(base + step[label]);
                row[label] = std::max(row[label], score);
            }
        }
    }

    static void add(Row& row, const std::int16_t* emission) {
        const int highest = *std::max_element(emission, emission + labels);
        std::array<int, labels> sums{};
        for (std::size_t label = 0; label < labels; ++label)
            sums[label] = row[label] + std::max(emission[label] - highest, lowestEmission);
        const int best = *std::max_element(sums.begin(), sums.end());
        for (std::size_t label = 0; label < labels; ++label)
            row[label] = static_cast<std::int16_t>(std::max(sums[label] - best, furthestBehind));
    }

    // The first of the labels from which the score is highest.
    template <typename Transition>
    static std::uint8_t cameFrom(const Row& before, Transition transition) {
        std::size_t best = 0;
        int highest = before[0] + transition(0);
        for (std::size_t previous = 1; previous < labels; ++previous) {
            const int score = before[previous] + transition(previous);
            if (score <= highest) continue;
            highest = score;
            best = previous;
        }
        return static_cast<std::uint8_t>(best);
    }

    std::vector<Row> rows_; // kept between sentences for its memory only
};

} // namespace lexiform::linguistics
