#include "linguistics/lemmas/LemmaRule.h"

#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

std::string lemma(const LemmaRule& rule, std::string_view form, LemmaCasing casing = LemmaCasing::lower,
                  std::string_view language = "en") {
    const CaseRules rules = caseRulesOf(language);
    return lemmaBy(rule, casing, FoldedWord(form, rules), rules);
}

TEST(LemmaRuleTest, changesTheEndOfAWord) {
    const LemmaRule rule{.suffixDropped = 3, .ending = U"y"};
    EXPECT_EQ(lemma(rule, "berries"), "berry");
    EXPECT_TRUE(rule.fits(3));
    EXPECT_FALSE(rule.fits(2));
}

TEST(LemmaRuleTest, changesBothEnds) {
    EXPECT_EQ(
        lemma({.prefixDropped = 2, .suffixDropped = 1, .ending = U"en"}, "gemacht", LemmaCasing::lower, "de"),
        "machen");
    EXPECT_EQ(lemma({.prefixKept = 2, .prefixDropped = 2, .suffixDropped = 1, .ending = U"en"}, "abgeholt"),
              "abholen");
    EXPECT_EQ(lemma({.prefixDropped = 2, .inserted = U"p"}, "memakai", LemmaCasing::lower, "id"), "pmakai");
}

TEST(LemmaRuleTest, givesOneLemmaForAnyWordIfItIsWhole) {
    const LemmaRule rule{.whole = true, .ending = U"be"};
    EXPECT_EQ(lemma(rule, "was"), "be");
    EXPECT_TRUE(rule.fits(1));
    EXPECT_FALSE(rule.keepsAll());
}

TEST(LemmaRuleTest, countsCharactersNotBytes) {
    EXPECT_EQ(lemma({.suffixDropped = 2, .ending = U"о"}, "окнами"), "окнао");
    EXPECT_EQ(lemma({.suffixDropped = 1}, "школы"), "школ");
    EXPECT_EQ(lemma({}, "Ünlü"), "ünlü");
}

TEST(LemmaRuleTest, setsCapitals) {
    EXPECT_EQ(lemma({.suffixDropped = 2}, "HÄUSER", LemmaCasing::capitalised), "Häus");
    EXPECT_EQ(lemma({.suffixDropped = 1}, "iPhones", LemmaCasing::kept), "iPhone");
    EXPECT_EQ(lemma({}, "nato", LemmaCasing::upper), "NATO");
    EXPECT_EQ(lemma({}, "I", LemmaCasing::lower), "i");
}

TEST(LemmaRuleTest, keepsTheTwoTurkishLettersApart) {
    EXPECT_EQ(lemma({}, "IŞIK", LemmaCasing::lower, "tr"), "ışık");
    EXPECT_EQ(lemma({}, "İŞ", LemmaCasing::lower, "tr"), "iş");
    EXPECT_EQ(lemma({}, "izmir", LemmaCasing::capitalised, "tr"), "İzmir");
}

TEST(FoldedWordTest, isEmptyForWhatNoRuleFits) {
    EXPECT_EQ(FoldedWord("", CaseRules::standard).size(), 0U);
    EXPECT_EQ(FoldedWord("a\xFF", CaseRules::standard).size(), 0U);
    EXPECT_EQ(FoldedWord(std::string(FoldedWord::mostCharacters, 'a'), CaseRules::standard).size(),
              FoldedWord::mostCharacters);
    EXPECT_EQ(FoldedWord(std::string(FoldedWord::mostCharacters + 1, 'a'), CaseRules::standard).size(), 0U);
}

TEST(FoldedWordTest, knowsWhichLettersAreCapitals) {
    const auto caseOf = [](std::string_view form) {
        return FoldedWord(form, CaseRules::standard).letterCase();
    };
    EXPECT_EQ(caseOf("word"), LetterCase::lower);
    EXPECT_EQ(caseOf("Word"), LetterCase::capitalised);
    EXPECT_EQ(caseOf("WORD"), LetterCase::upper);
    EXPECT_EQ(caseOf("I"), LetterCase::oneCapital);
    EXPECT_EQ(caseOf("eBay"), LetterCase::mixed);
    EXPECT_EQ(caseOf("1984"), LetterCase::none);
}

} // namespace
} // namespace lexiform::linguistics
