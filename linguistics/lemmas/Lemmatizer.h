#pragma once

#include "linguistics/lemmas/LemmaFeatures.h"
#include "linguistics/lemmas/LemmaModel.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lexiform::linguistics {

/// Chooses the lemma of a word by a linear model over the word's letters, its part of speech and, for the few
/// words that need it, its neighbours: first the rule that makes the lemma, then its capitals. Integers
/// throughout, so that every processor gives the same lemmas. Not for several threads at once.
class Lemmatizer {
public:
    /// A lemmatizer by `model`, which must outlive it.
    explicit Lemmatizer(const LemmaModel& model);

    /// A lemma, and whether it would be the same among any other words.
    struct Answer {
        std::string lemma{};
        bool dependsOnNeighbours = false;
    };

    /// The lemma of word `at` of `sentence`, whose words are any bytes, without white space. A word that is
    /// not UTF-8, or longer than any in a dictionary, is its own lemma; no lemma of a word is empty.
    [[nodiscard]] Answer lemmaOf(std::span<const TaggedWord> sentence, std::size_t at);

private:
    [[nodiscard]] LemmaNeighbour neighbourAt(std::span<const TaggedWord> sentence, std::size_t at) const;
    void addNeighbours(const LemmaTraits& traits, std::span<const TaggedWord> sentence, std::size_t at);
    [[nodiscard]] bool isMarked(const LemmaTraits& traits, UniversalPos pos) const;
    void add(std::uint64_t feature);
    [[nodiscard]] std::size_t bestRule(std::size_t size) const;
    [[nodiscard]] LemmaCasing bestCasing() const;
    void forget();

    const LemmaModel& model_;
    std::vector<std::int32_t> scores_;   ///< of each label; zero between words
    std::vector<std::uint32_t> touched_; ///< labels whose scores may not be zero
};

} // namespace lexiform::linguistics
