#include "tools/train/sources/rules/Splitting.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

TEST(Splitting, cutsAnEndingOffWhereTheRestIsAWord) {
    Corpus corpus = {sentence({word("rumah", NOUN, "rumah"), word("rumahnya", NOUN, "rumah"),
                               word("tanya", NOUN, "tanya"), word("hanya", ADV, "hanya")})};
    corpus[0].tokens[1].spaceAfter = true;
    withEndingApart("nya", PRON, {NOUN})(corpus);
    EXPECT_EQ(formsOf(corpus[0]), "rumah rumah nya tanya hanya");
    EXPECT_EQ(tagsOf(corpus[0]), "NOUN NOUN PRON NOUN ADV");
    EXPECT_FALSE(corpus[0].tokens[1].spaceAfter);
    EXPECT_TRUE(corpus[0].tokens[2].spaceAfter);
}

TEST(Splitting, cutsPunctuationOffNames) {
    Corpus corpus = {
        sentence({named("Zwolle,", NameLabel::beginsPlace), named("J.", NameLabel::beginsPerson)})};
    withPunctuationApart()(corpus);
    EXPECT_EQ(formsOf(corpus[0]), "Zwolle , J.");
    EXPECT_EQ(corpus[0].tokens[0].name, NameLabel::beginsPlace);
    EXPECT_EQ(corpus[0].tokens[1].name, NameLabel::outside);
}

} // namespace
} // namespace lexiform::train
