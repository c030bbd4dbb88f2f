#include "tools/train/lemmas/wholeWords.h"

#include "tools/train/lemmas/LemmaModelWriter.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

constexpr std::uint64_t wholeWord = 1, itsEnding = 2, anotherWord = 3;
constexpr std::uint32_t unchanged = 5, usual = 6, needed = 7;

bool fitsAll(std::uint32_t, std::uint32_t) {
    return true;
}

double valueOf(const std::vector<LearntWeight>& weights, std::uint64_t feature, std::uint32_t label) {
    for (const LearntWeight& weight : weights)
        if (weight.feature == feature && weight.label == label) return weight.value;
    return 0;
}

TEST(WholeWords, getTheWeightThatTheyNeed) {
    std::vector<LearntWeight> weights = {{itsEnding, usual, 100}};
    const std::vector<LemmaExample> examples = {{{wholeWord, itsEnding}, needed, 4}};
    mendWholeWords(examples, fitsAll, unchanged, 1, weights);
    EXPECT_GT(roundedWeight(valueOf(weights, wholeWord, needed)), 100);
    EXPECT_EQ(valueOf(weights, itsEnding, usual), 100) << "what serves other words stays";
}

TEST(WholeWords, stayAsTheyAreWhereTheyAreRight) {
    std::vector<LearntWeight> weights = {{itsEnding, usual, 100}};
    const std::vector<LemmaExample> examples = {{{wholeWord, itsEnding}, usual, 4}};
    mendWholeWords(examples, fitsAll, unchanged, 1, weights);
    EXPECT_EQ(weights.size(), 1U);
}

TEST(WholeWords, winTiesAgainstLowerLabels) {
    std::vector<LearntWeight> weights = {{itsEnding, usual, 100}, {wholeWord, needed, 100}};
    const std::vector<LemmaExample> examples = {{{wholeWord, itsEnding}, needed, 4}};
    mendWholeWords(examples, fitsAll, unchanged, 0, weights);
    EXPECT_GT(roundedWeight(valueOf(weights, wholeWord, needed)), 100);
}

TEST(WholeWords, takeTheRoomByWhatTheyCount) {
    std::vector<LearntWeight> weights = {{itsEnding, usual, 100}};
    const std::vector<LemmaExample> examples = {{{wholeWord, itsEnding}, needed, 4, 1},
                                                {{anotherWord, itsEnding}, needed, 4, 9}};
    mendWholeWords(examples, fitsAll, unchanged, 1, weights);
    EXPECT_EQ(valueOf(weights, wholeWord, needed), 0);
    EXPECT_GT(valueOf(weights, anotherWord, needed), 0);
}

TEST(WholeWords, areLeftToTheirNeighboursWhereThoseDecide) {
    std::vector<LearntWeight> weights = {{itsEnding, usual, 100}};
    const std::vector<LemmaExample> examples = {{{wholeWord, itsEnding}, needed, 4, 1, true}};
    mendWholeWords(examples, fitsAll, unchanged, 1, weights);
    EXPECT_EQ(weights.size(), 1U);
}

TEST(WholeWords, doNotFearARuleThatDoesNotFit) {
    std::vector<LearntWeight> weights = {{itsEnding, usual, 100}, {wholeWord, needed, 1}};
    const std::vector<LemmaExample> examples = {{{wholeWord, itsEnding}, needed, 4}};
    const auto fits = [](std::uint32_t label, std::uint32_t) { return label != usual; };
    mendWholeWords(examples, fits, unchanged, 1, weights);
    EXPECT_EQ(valueOf(weights, wholeWord, needed), 1);
}

TEST(WholeWords, areRoundedAsInAModel) {
    EXPECT_EQ(roundedWeight(4.2), 4);
    EXPECT_EQ(roundedWeight(-9), -9);
    EXPECT_EQ(roundedWeight(1e9), 961);
    EXPECT_EQ(leastRoundedTo(10), 16);
    EXPECT_EQ(leastRoundedTo(-10), -9);
    EXPECT_EQ(leastRoundedTo(5000), 961);
}

} // namespace
} // namespace lexiform::train
