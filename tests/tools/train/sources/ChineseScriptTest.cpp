#include "tools/train/sources/rules/ChineseScript.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

TEST(ChineseScript, becomesSimplifiedInFormsAndLemmas) {
    Corpus corpus = {sentence({word("學習", VERB, "學習"), word("漢語", NOUN, "漢語")})};
    simplifiedCharacters()(corpus);
    EXPECT_EQ(formsOf(corpus[0]), "学习 汉语");
    EXPECT_EQ(corpus[0].tokens[1].lemma, "汉语");
}

TEST(ChineseScript, givesPunctuationItsWidthBackButLeavesOtherWords) {
    Corpus corpus = {sentence({word(",", PUNCT, ","), word("4.8", NUM, "4.8"), word(".", SYM, ".")})};
    fullWidthPunctuation()(corpus);
    EXPECT_EQ(formsOf(corpus[0]), "， 4.8 .");
    EXPECT_EQ(corpus[0].tokens[0].lemma, "，");
}

} // namespace
} // namespace lexiform::train
