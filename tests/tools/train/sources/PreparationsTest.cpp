#include "tools/train/sources/rules/Preparations.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

GoldToken plain(std::string_view form) {
    return named(form, NameLabel::outside);
}

TEST(Preparations, cutAfterAStopThatACapitalFollows) {
    Corpus corpus = {sentence({plain("fin"), plain("."), plain("Le"), plain("art."), plain("deux")})};
    cutSentences(60)(corpus);
    ASSERT_EQ(corpus.size(), 2U);
    EXPECT_EQ(formsOf(corpus[0]), "fin .");
    EXPECT_EQ(formsOf(corpus[1]), "Le art. deux");
}

TEST(Preparations, cutAtTheLengthButNotInsideAName) {
    Corpus corpus = {sentence({plain("à"), named("New", NameLabel::beginsPlace),
                               named("York", NameLabel::insidePlace), plain("hier")})};
    cutSentences(2)(corpus);
    ASSERT_EQ(corpus.size(), 2U);
    EXPECT_EQ(formsOf(corpus[0]), "à New York");
    EXPECT_EQ(formsOf(corpus[1]), "hier");
}

TEST(Preparations, leaveOutSentencesOrWords) {
    Corpus corpus = {sentence({plain("a"), plain("x")}), sentence({plain("b")}), sentence({plain("x")})};
    Corpus words = corpus;
    withoutSentencesWith(form("x"))(corpus);
    ASSERT_EQ(corpus.size(), 1U);
    EXPECT_EQ(formsOf(corpus[0]), "b");
    withoutWords(form("x"))(words);
    ASSERT_EQ(words.size(), 2U);
    EXPECT_EQ(formsOf(words[0]), "a");
}

TEST(Preparations, keepEveryNthSentence) {
    Corpus corpus = {sentence({plain("a")}), sentence({plain("b")}), sentence({plain("c")})};
    everyNth(2)(corpus);
    ASSERT_EQ(corpus.size(), 2U);
    EXPECT_EQ(formsOf(corpus[1]), "c");
}

TEST(Preparations, giveWordsInNamesTheTagThatTheyHaveElsewhere) {
    Corpus corpus = {
        sentence({word("Bank", PROPN, "Bank"), word("von", PROPN, "von"), word("Bern", PROPN, "Bern")}),
        sentence({word("Bank", NOUN, "Bank"), word("von", ADP, "von"), word("Bern", PROPN, "Bern")})};
    likeElsewhere(PROPN, {NOUN, ADP}, 0.5)(corpus);
    EXPECT_EQ(tagsOf(corpus[0]), "NOUN ADP PROPN");
}

TEST(Preparations, leaveATagThatIsSeldomAnythingElse) {
    Corpus corpus = {sentence({word("Rose", PROPN, "Rose"), word("Rose", PROPN, "Rose"),
                               word("Rose", PROPN, "Rose"), word("Rose", NOUN, "Rose")})};
    likeElsewhere(PROPN, {NOUN}, 0.5)(corpus);
    EXPECT_EQ(tagsOf(corpus[0]), "PROPN PROPN PROPN NOUN");
}

TEST(Preparations, joinTheWordsOfAContraction) {
    Corpus corpus = {sentence({word("De", ADP, "de"), word("a", DET, "o"), word("casa", NOUN, "casa"),
                               word("de", ADP, "de"), word("um", DET, "um")})};
    contracted("de a da de o do")(corpus);
    EXPECT_EQ(formsOf(corpus[0]), "Da casa de um");
    EXPECT_EQ(tagsOf(corpus[0]), "ADP NOUN ADP DET");
    EXPECT_EQ(corpus[0].tokens[0].furtherLemmas, std::vector<std::string>{"o"});
}

} // namespace
} // namespace lexiform::train
