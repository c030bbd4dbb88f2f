#include "tools/train/sources/Cleaning.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

Corpus withWord(std::string_view form) {
    return {sentence({word("one", NUM, "one"), word(form, NOUN, "it")})};
}

TEST(Cleaning, leavesOutSentencesWithLostOrInvisibleCharacters) {
    for (const char* form : {"a\xEF\xBF\xBD", "\xEF\xBB\xBF", "b\xE2\x80\x8B", "\xE2\x80\x8E"}) {
        Corpus corpus = withWord(form);
        clean(corpus, true);
        EXPECT_TRUE(corpus.empty()) << form;
    }
}

TEST(Cleaning, trimsFormsAndLeavesOutEmptyOnes) {
    Corpus corpus = withWord(" two ");
    clean(corpus, true);
    ASSERT_EQ(corpus.size(), 1U);
    EXPECT_EQ(corpus[0].tokens[1].form, "two");
    Corpus empty = withWord(" ");
    clean(empty, true);
    EXPECT_TRUE(empty.empty());
}

TEST(Cleaning, leavesOutPartlyTaggedSentencesWhereTagsAreWanted) {
    Corpus corpus = withWord("two");
    corpus[0].tokens[1].pos.reset();
    Corpus names = corpus;
    clean(corpus, true);
    clean(names, false);
    EXPECT_TRUE(corpus.empty());
    EXPECT_EQ(names.size(), 1U);
}

TEST(SentenceMemory, knowsLongSentencesAgainButNotShortOnes) {
    const GoldSentence thanks = sentence({word("Thanks", NOUN, "thank"), word("!", PUNCT, "!")});
    const GoldSentence story =
        sentence({word("The", DET, "the"), word("cat", NOUN, "cat"), word("sat", VERB, "sit"),
                  word("down", ADV, "down"), word(".", PUNCT, ".")});
    SentenceMemory memory;
    EXPECT_TRUE(memory.remember(thanks));
    EXPECT_TRUE(memory.remember(thanks));
    EXPECT_FALSE(memory.knows(thanks));
    EXPECT_TRUE(memory.remember(story));
    EXPECT_FALSE(memory.remember(story));
    EXPECT_TRUE(memory.knows(story));
}

} // namespace
} // namespace lexiform::train
