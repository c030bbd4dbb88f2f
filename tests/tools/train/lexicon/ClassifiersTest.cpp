#include "tools/train/lexicon/Classifiers.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

TEST(Classifiers, areTheNounsThatMostlyFollowNumbers) {
    Source source;
    source.tagWeight = 1;
    for (int i = 0; i < 4; ++i)
        source.corpus.push_back(
            sentence({word("三", NUM, "三"), word("只", NOUN, "只"), word("猫", NOUN, "猫")}));
    source.corpus.push_back(sentence({word("三", NUM, "三"), word("狗", NOUN, "狗")}));
    EXPECT_EQ(chineseClassifiers({source}), (std::set<std::string>{"只"}));
}

TEST(Classifiers, areNotSoughtWhereNothingTeachesTags) {
    Source source;
    for (int i = 0; i < 4; ++i)
        source.corpus.push_back(sentence({word("三", NUM, "三"), word("只", NOUN, "只")}));
    EXPECT_TRUE(chineseClassifiers({source}).empty());
}

} // namespace
} // namespace lexiform::train
