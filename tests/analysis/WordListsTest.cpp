#include "analysis/ViewController.h"

#include "tests/support/TableTagger.h"
#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <sstream>

namespace lexiform {
namespace {

const ScriptedTagger::Script sixWordTags = {{"The", "Determiner"}, {"cat", "Noun"},       {"sat", "Verb"},
                                            {"on", "Preposition"}, {"the", "Determiner"}, {"mat", "Noun"}};

std::string golden(const std::string& name) {
    std::ostringstream content;
    content << std::ifstream(std::string(LEXIFORM_SOURCE_DIR) + "/tests/golden/" + name, std::ios::binary)
                   .rdbuf();
    return content.str();
}

TEST(Concordance, listsTheSixWordSentence) {
    const WindowUnderTest window{"The cat sat on the mat.", sixWordTags};
    window.controller->parseText();
    window.controller->listConcButton();
    EXPECT_EQ(window.concordance->plainText(), golden("six-words.concordance.txt"));
}

TEST(Concordance, isInTheTextColourAndReplacesWhatThePaneHeld) {
    const WindowUnderTest window{"cat", {{"cat", "Noun"}}};
    window.concordance->content = {"before", Colour::red};
    window.controller->parseText();
    window.controller->listConcButton();
    EXPECT_EQ(
        window.concordance->content,
        AttributedText("\nNouns:\ncat (1)\n\nTotal Nouns = 1\n\nTotal words classified = 1\n", Colour::text));
}

TEST(Concordance, holdsNothingButTheTotalWhenNoWordIsClassified) {
    const WindowUnderTest window;
    window.controller->listConcButton();
    EXPECT_EQ(window.concordance->plainText(), "\nTotal words classified = 0\n");
}

TEST(Concordance, growsItsGrandTotalWithEveryListingButNotItsSections) {
    const WindowUnderTest window{"The cat sat on the mat.", sixWordTags};
    window.controller->parseText();
    window.controller->listConcButton();
    const std::string first = window.concordance->plainText();
    window.controller->listConcButton();
    const std::string second = window.concordance->plainText();
    const std::string total = "Total words classified = ";
    EXPECT_EQ(first.substr(first.find(total)), total + "6\n");
    EXPECT_EQ(second.substr(second.find(total)), total + "12\n");
    EXPECT_EQ(second.substr(0, second.find(total)), first.substr(0, first.find(total)));
}

TEST(Concordance, startsItsGrandTotalAgainAfterTheLexicalPass) {
    const WindowUnderTest window{"cat", {{"cat", "Noun"}}};
    window.controller->parseText();
    window.controller->listConcButton();
    window.controller->parseText();
    window.controller->listConcButton();
    EXPECT_EQ(window.controller->totWordC, 1);
}

TEST(Concordance, leavesTheOtherPanesAlone) {
    const WindowUnderTest window{"cat", {{"cat", "Noun"}}};
    window.controller->parseText();
    const AttributedText output = window.output->content;
    window.controller->listConcButton();
    EXPECT_EQ(window.output->content, output);
    EXPECT_EQ(window.input->plainText(), "cat");
}

TEST(Concordance, countsItsTotalEvenForAPaneWithoutTextStorage) {
    const WindowUnderTest window;
    window.controller->nouns = {{"cat", 2}};
    window.concordance->hasStorage = false;
    window.controller->listConcButton();
    EXPECT_EQ(window.controller->totWordC, 2);
    EXPECT_EQ(window.concordance->plainText(), "");
}

TEST(WordDictionaryListing, isSortedByWordsNotByCounts) {
    const WindowUnderTest window;
    EXPECT_EQ(window.controller->listWordDict({{"the", 3}, {"cat", 1}, {"apple", 2}}, "Nouns"),
              "\nNouns:\napple (2)\ncat (1)\nthe (3)\n\nTotal Nouns = 6\n");
    EXPECT_EQ(window.controller->totWordC, 6);
}

TEST(WordDictionaryListing, putsCapitalsFirst) {
    const WindowUnderTest window;
    EXPECT_EQ(window.controller->listWordDict({{"adam", 1}, {"Zoe", 1}}, "Names"),
              "\nNames:\nZoe (1)\nadam (1)\n\nTotal Names = 2\n");
}

TEST(WordDictionaryListing, putsAWordBeforeALongerOneThatBeginsWithIt) {
    const WindowUnderTest window;
    EXPECT_EQ(window.controller->listWordDict({{"bean", 1}, {"be", 2}, {"a-b", 1}, {"a", 1}}, "X"),
              "\nX:\na (1)\na-b (1)\nbe (2)\nbean (1)\n\nTotal X = 5\n");
}

TEST(WordDictionaryListing, sortsByScalarsAfterComposition) {
    const WindowUnderTest window;
    // Decomposed, the second would stand before "eb"; composed it follows "z".
    EXPECT_EQ(window.controller->listWordDict({{"z", 1}, {"e\u0301a", 1}, {"eb", 1}}, "X"),
              "\nX:\neb (1)\nz (1)\ne\u0301a (1)\n\nTotal X = 3\n");
}

TEST(WordDictionaryListing, breaksTheTieOfCanonicalEquivalentsByTheirOwnScalars) {
    const WindowUnderTest window;
    EXPECT_EQ(window.controller->listWordDict({{"\u00E9", 1}, {"e\u0301", 1}}, "X"),
              "\nX:\ne\u0301 (1)\n\u00E9 (1)\n\nTotal X = 2\n");
}

TEST(WordDictionaryListing, isEmptyWithoutWordsAndAddsNothing) {
    const WindowUnderTest window;
    window.controller->totWordC = 3;
    EXPECT_EQ(window.controller->listWordDict({}, "Verbs"), "");
    EXPECT_EQ(window.controller->totWordC, 3);
}

TEST(Recount, countsTheFormsOfOneLemmaTogether) {
    const WindowUnderTest window;
    window.controller->indTypes = {"Verb"};
    for (const char* word : {"is", "was", "were"})
        window.controller->taggedText.push_back({.word = word, .type = 0, .lemma = "be"});
    window.controller->listConcButton();
    EXPECT_EQ(window.concordance->plainText(),
              "\nVerbs:\nbe (3)\n\nTotal Verbs = 3\n\nTotal words classified = 3\n");
}

TEST(Recount, countsATokenWithoutALemmaUnderItsOwnWord) {
    const WindowUnderTest window;
    window.controller->indTypes = {"Noun"};
    window.controller->taggedText.push_back({.word = "Lamps", .type = 0, .lemma = " "});
    window.controller->recountTaggedText();
    EXPECT_EQ(window.controller->nouns, (WordDictionary{{"lamps", 1}}));
}

TEST(Recount, keepsTheCapitalsOfNamesAlone) {
    const WindowUnderTest window;
    window.controller->indTypes = {"PlaceName", "Noun", "PersonalName", "OrganizationName"};
    for (const int type : {0, 1, 2, 3})
        window.controller->taggedText.push_back({.word = "Paris", .type = type, .lemma = "Paris"});
    window.controller->recountTaggedText();
    EXPECT_EQ(window.controller->names, (WordDictionary{{"Paris", 3}}));
    EXPECT_EQ(window.controller->nouns, (WordDictionary{{"paris", 1}}));
}

TEST(Recount, skipsTokensOfOtherTypes) {
    const WindowUnderTest window;
    window.controller->indTypes = {"Number",     "Whitespace", "Idiom", "Interjection",
                                   "Classifier", "OtherWord",  "[]"};
    for (int type = 0; type < 7; ++type)
        window.controller->taggedText.push_back({.word = "x", .type = type, .lemma = "x"});
    window.controller->listConcButton();
    EXPECT_EQ(window.concordance->plainText(), "\nTotal words classified = 0\n");
}

TEST(Recount, countsIntoEveryDictionaryOfTheReport) {
    const WindowUnderTest window;
    window.controller->indTypes = {"Verb",       "Noun",     "Adjective",   "Adverb",     "Pronoun",
                                   "Determiner", "Particle", "Preposition", "Conjunction"};
    for (int type = 0; type < 9; ++type)
        window.controller->taggedText.push_back({.word = "W", .type = type, .lemma = "W"});
    window.controller->listConcButton();
    std::string expected;
    for (const char* heading : {"Verbs", "Nouns", "Adjectives", "Adverbs", "Pronouns", "Determiners",
                                "Particles", "Prepositions", "Conjunctions"})
        expected += std::string("\n") + heading + ":\nw (1)\n\nTotal " + heading + " = 1\n";
    EXPECT_EQ(window.concordance->plainText(), expected + "\nTotal words classified = 9\n");
}

TEST(Recount, replacesTheDictionariesOfTheLexicalPassAndLeavesTheTotal) {
    const WindowUnderTest window;
    window.controller->nouns = {{"old", 4}};
    window.controller->totWordC = 5;
    window.controller->indTypes = {"Noun"};
    window.controller->taggedText.push_back({.word = "new", .type = 0, .lemma = "new"});
    window.controller->recountTaggedText();
    EXPECT_EQ(window.controller->nouns, (WordDictionary{{"new", 1}}));
    EXPECT_EQ(window.controller->totWordC, 5);
}

TEST(ConcordanceDeathTest, stopsTheProgramWithoutAConcordancePane) {
    const WindowUnderTest window;
    window.controller->concordTextbox = nullptr;
    EXPECT_DEATH(window.controller->listConcButton(), "not connected");
}

TEST(ConcordanceDeathTest, stopsTheProgramWhenASumOverflows) {
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    const WindowUnderTest window;
    EXPECT_DEATH((void)window.controller->listWordDict({{"a", largest}, {"b", 1}}, "X"), "overflows");
    window.controller->totWordC = largest;
    EXPECT_DEATH((void)window.controller->listWordDict({{"a", 1}}, "X"), "overflows");
}

TEST(RecountDeathTest, stopsTheProgramForARecordWithoutLemmaOrWord) {
    const WindowUnderTest noLemma;
    noLemma.controller->indTypes = {"Noun"};
    noLemma.controller->taggedText.push_back({.word = "x", .lemma = std::nullopt});
    EXPECT_DEATH(noLemma.controller->recountTaggedText(), "no lemma");
    const WindowUnderTest noWord;
    noWord.controller->indTypes = {"Noun"};
    noWord.controller->taggedText.push_back({.word = std::nullopt, .lemma = " "});
    EXPECT_DEATH(noWord.controller->recountTaggedText(), "neither lemma nor word");
}

const std::vector<TableRow> forms = {{.word = "Is", .type = "Verb", .lemma = "be"},
                                     {.word = " ", .type = "Whitespace"},
                                     {.word = "was", .type = "Verb", .lemma = "be"},
                                     {.word = "is", .type = "Verb", .lemma = "be"},
                                     {.word = "Lunde", .type = "PlaceName", .lemma = "Lunde"}};

TEST(ListedForms, areTheWordsOfALemma) {
    const WindowUnderTest window(textOf(forms), tableTaggers(forms));
    window.controller->multiParse();
    EXPECT_EQ(window.controller->formsListedAs("be"), (std::vector<std::string>{"was", "is"}));
    EXPECT_EQ(window.controller->formsListedAs("Lunde"), std::vector<std::string>{"lunde"});
    EXPECT_TRUE(window.controller->formsListedAs("was").empty());
}

TEST(ListedForms, areTheLemmasWhereTheOutputShowsThem) {
    const WindowUnderTest window(textOf(forms), tableTaggers(forms));
    window.controller->multiParse();
    window.controller->showSchemeView(4);
    EXPECT_EQ(window.controller->formsListedAs("be"), std::vector<std::string>{"be"});
}

TEST(ListedForms, areAsTheyStandWhereTheirLowerCaseIsAnotherText) {
    const WindowUnderTest window;
    window.controller->taggedText.push_back({.word = "İstanbul", .lemma = "İstanbul"});
    EXPECT_EQ(window.controller->formsListedAs("İstanbul"), std::vector<std::string>{"İstanbul"});
}

TEST(ListedForms, areUnknownWithoutRecords) {
    const WindowUnderTest window(textOf(forms), tableTaggers(forms));
    window.controller->parseText();
    EXPECT_TRUE(window.controller->formsListedAs("is").empty());
}

TEST(RecountDeathTest, stopsTheProgramForATypeOutsideItsIndex) {
    for (const std::int64_t type : {-1, 1}) {
        const WindowUnderTest window;
        window.controller->indTypes = {"Noun"};
        window.controller->taggedText.push_back({.word = "x", .type = type, .lemma = "x"});
        EXPECT_DEATH(window.controller->recountTaggedText(), "outside its index");
    }
}

} // namespace
} // namespace lexiform
