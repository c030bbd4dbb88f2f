#include "linguistics/lemmas/LemmaModel.h"

#include "tests/linguistics/lemmas/LemmaModelBytes.h"

#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

std::string faultOf(const LemmaModelBytes& bytes) {
    const auto words = bytes.file();
    const auto file = ModelFile::over(std::as_bytes(std::span(words)));
    if (!file.succeeded()) return "no model file: " + file.fault();
    const auto model = LemmaModel::over(file.value());
    return model.succeeded() ? "" : model.fault();
}

LemmaModelBytes good() {
    LemmaModelBytes bytes;
    bytes.addRule(false, 0, 0, 0, "", "");
    bytes.addRule(false, 0, 0, 1, "", "é");
    bytes.addWeight(7, firstRuleLabel + 1, 5);
    return bytes;
}

TEST(LemmaModelTest, isReadAsItIs) {
    EXPECT_EQ(faultOf(good()), "");
}

TEST(LemmaModelTest, isRefusedWhereItsRulesAreCutOff) {
    const LemmaModelBytes whole = good();
    // At byte 6 the first rule ends, which leaves a good model with too few rules for its weights.
    for (std::size_t size = 0; size < whole.rules.size(); ++size) {
        LemmaModelBytes cut = whole;
        cut.rules.resize(size);
        EXPECT_NE(faultOf(cut), "") << size;
    }
}

TEST(LemmaModelTest, isRefusedWithAnyByteOfARuleOutOfBounds) {
    LemmaModelBytes flags = good();
    flags.rules[0] = 2;
    EXPECT_EQ(faultOf(flags), "a lemma rule is damaged");
    LemmaModelBytes length = good();
    length.rules[4] = 255;
    EXPECT_EQ(faultOf(length), "a lemma rule is damaged");
    LemmaModelBytes text = good();
    text.rules.back() = 0xFF;
    EXPECT_EQ(faultOf(text), "a lemma rule is damaged");
}

TEST(LemmaModelTest, isRefusedWhenARuleGivesNothingOrTooMuch) {
    LemmaModelBytes nothing = good();
    nothing.addRule(true, 0, 0, 0, "", "");
    EXPECT_EQ(faultOf(nothing), "a lemma rule is damaged");
    LemmaModelBytes much = good();
    much.addRule(true, 0, 0, 0, "", std::string(longestRuleText + 1, 'a'));
    EXPECT_EQ(faultOf(much), "a lemma rule is damaged");
}

TEST(LemmaModelTest, isRefusedUnlessTheFirstRuleChangesNothing) {
    LemmaModelBytes bytes;
    EXPECT_EQ(faultOf(bytes), "the first lemma rule changes the word");
    bytes.addRule(false, 0, 0, 1, "", "");
    EXPECT_EQ(faultOf(bytes), "the first lemma rule changes the word");
}

TEST(LemmaModelTest, isRefusedWithMoreRulesThanLabels) {
    LemmaModelBytes bytes = good();
    for (std::size_t i = 0; i < mostLemmaLabels; ++i)
        bytes.addRule(false, 0, 0, 0, "", "");
    EXPECT_EQ(faultOf(bytes), "there are too many lemma rules");
}

TEST(LemmaModelTest, isRefusedWhenBucketsDoNotCoverTheWeights) {
    LemmaModelBytes count = good();
    count.bucketStarts = {0, 0, 0, 1};
    EXPECT_EQ(faultOf(count), "the buckets of the lemma weights have a wrong count");
    LemmaModelBytes none = good();
    none.bucketStarts = {};
    EXPECT_EQ(faultOf(none), "the buckets of the lemma weights have a wrong count");
    for (const auto& starts : {std::vector<std::uint16_t>{0, 2}, {1, 1}, {0, 2, 1}, {0, 9, 1}}) {
        LemmaModelBytes wrong = good();
        wrong.bucketStarts = starts;
        EXPECT_EQ(faultOf(wrong), "the buckets do not cover the lemma weights");
    }
}

TEST(LemmaModelTest, isRefusedWhenAWeightIsForNoRule) {
    LemmaModelBytes bytes = good();
    bytes.addWeight(7, firstRuleLabel + 2, 5);
    EXPECT_EQ(faultOf(bytes), "a lemma weight is for no label");
}

TEST(LemmaModelTest, givesEachWeightOfAFeatureWithItsSign) {
    LemmaModelBytes bytes = good();
    bytes.addWeight(8, 0, -LemmaWeight::largestRoot);
    const auto words = bytes.file();
    const auto file = ModelFile::over(std::as_bytes(std::span(words)));
    const auto model = LemmaModel::over(file.value());
    std::vector<std::pair<std::size_t, int>> seen;
    const auto see = [&](std::size_t label, int weight) { seen.emplace_back(label, weight); };
    model.value().forEachWeight(7, see);
    model.value().forEachWeight(8, see);
    model.value().forEachWeight(9, see);
    const std::vector<std::pair<std::size_t, int>> expected = {{firstRuleLabel + 1, 25},
                                                               {0, -LemmaWeight::largest}};
    EXPECT_EQ(seen, expected);
}

} // namespace
} // namespace lexiform::linguistics
