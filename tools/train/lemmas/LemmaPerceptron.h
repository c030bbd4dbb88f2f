#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

namespace lexiform::train {

/// One thing to learn: features, the right label, and how much it counts.
struct LemmaExample {
    std::vector<std::uint64_t> features;
    std::uint32_t gold = 0;
    std::uint32_t wordSize = 0; ///< characters, which decide what rules fit
    std::int32_t weight = 1;    ///< at least 1
    bool hasNeighbours = false; ///< whether some features are of the words beside it
};

/// A feature's weight for a label.
struct LearntWeight {
    std::uint64_t feature = 0;
    std::uint32_t label = 0;
    double value = 0;
};

/// A multiclass perceptron with a margin, averaged (Collins 2002, "Discriminative training methods for
/// hidden Markov models"). Integers until the averages, and a fixed order: the same examples give the
/// same weights.
class LemmaPerceptron {
public:
    /// Whether a label may be chosen for a word of so many characters.
    using Fits = std::function<bool(std::uint32_t label, std::uint32_t wordSize)>;

    /// `fallback` is the label of a word that none of whose features is known; `labelCount` bounds all. There
    /// is `room` for so many weights in the end.
    LemmaPerceptron(std::size_t labelCount, std::uint32_t fallback, std::size_t room, Fits fits);

    /// Goes over `examples` `rounds` times.
    void learn(std::span<const LemmaExample> examples, int rounds);

    /// Drops all but the heaviest averages, three quarters of the room. What is learnt from then on adjusts
    /// these, and new weights come from the first feature of an example only: that
    /// should be the word as a whole, whose exceptions the lighter weights spelt out.
    void prune();

    /// How many examples were given a wrong label in the last round.
    [[nodiscard]] std::size_t mistakes() const { return mistakes_; }

    /// The averaged weights that are not zero, in order of feature and label.
    [[nodiscard]] std::vector<LearntWeight> weights() const;

private:
    struct Cell {
        std::uint32_t label = 0;
        std::int32_t value = 0;
        std::int64_t total = 0;
        std::int64_t since = 0;
    };
    using Row = std::vector<Cell>;

    struct Prepared {
        std::vector<std::uint32_t> rows;
        std::uint32_t gold, wordSize;
        std::int32_t weight;
    };

    [[nodiscard]] std::vector<Prepared> prepared(std::span<const LemmaExample> examples);
    void learnFrom(const Prepared& example);
    void score(const Prepared& example);
    [[nodiscard]] std::uint32_t rival(const Prepared& example) const;
    void change(const Prepared& example, std::uint32_t label, std::int32_t by);
    [[nodiscard]] double average(const Cell& cell) const;

    std::uint32_t fallback_;
    Fits fits_;
    std::unordered_map<std::uint64_t, std::uint32_t> rowOf_;
    std::vector<std::uint64_t> features_; ///< by row
    std::vector<Row> rows_;
    std::vector<std::int32_t> scores_;
    std::vector<std::uint32_t> touched_;
    std::int64_t now_ = 1;
    bool pruned_ = false;
    std::size_t room_; ///< for weights; once pruned, for new ones
    std::size_t mistakes_ = 0;
};

} // namespace lexiform::train
