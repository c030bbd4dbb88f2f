#include "tools/train/lemmas/RuleFinder.h"

#include <gtest/gtest.h>

#include <tuple>

namespace lexiform::train {
namespace {

using namespace linguistics;

TEST(RuleFinderTest, findsTheRuleThatGivesTheLemmaInEveryLanguage) {
    const std::tuple<std::string_view, std::string_view, std::string_view, UniversalPos> words[] = {
        {"en", "Berries", "berry", UniversalPos::NOUN},
        {"en", "me", "I", UniversalPos::PRON},
        {"en", "went", "go", UniversalPos::VERB},
        {"en", "Paris", "Paris", UniversalPos::PROPN},
        {"de", "HÄUSER", "Haus", UniversalPos::NOUN},
        {"de", "aufgegeben", "aufgeben", UniversalPos::VERB},
        {"fr", "chevaux", "cheval", UniversalPos::NOUN},
        {"es", "quepo", "caber", UniversalPos::VERB},
        {"it", "anziché", "anziché", UniversalPos::SCONJ},
        {"pt", "ações", "ação", UniversalPos::NOUN},
        {"ru", "лучшего", "хороший", UniversalPos::ADJ},
        {"tr", "IŞIKLARI", "ışık", UniversalPos::NOUN},
        {"nl", "gekocht", "kopen", UniversalPos::VERB},
        {"da", "mændene", "mand", UniversalPos::NOUN},
        {"sv", "böckerna", "bok", UniversalPos::NOUN},
        {"nb", "øynene", "øye", UniversalPos::NOUN},
        {"fi", "kädessä", "käsi", UniversalPos::NOUN},
        {"ro", "copiilor", "copil", UniversalPos::NOUN},
        {"ca", "cases", "casa", UniversalPos::NOUN},
        {"id", "memperbaiki", "baik", UniversalPos::VERB},
        {"ko", "학교에서", "학교+에서", UniversalPos::NOUN},
        {"vi", "Nhà", "nhà", UniversalPos::NOUN},
        {"zh", "學校", "學校", UniversalPos::NOUN},
        {"en", "McDonalds", "McDonald's", UniversalPos::PROPN},
    };
    for (const auto& [language, form, lemma, pos] : words) {
        const CaseRules rules = caseRulesOf(language);
        const auto found = ruleBetween(form, lemma, pos, rules);
        ASSERT_TRUE(found.has_value()) << form;
        EXPECT_EQ(lemmaBy(found->rule, found->casing, FoldedWord(form, rules), rules), lemma);
    }
}

LemmaRule rule(std::string_view form, std::string_view lemma, UniversalPos pos = UniversalPos::VERB) {
    return ruleBetween(form, lemma, pos, CaseRules::standard)->rule;
}

TEST(RuleFinderTest, findsOneRuleForAllWordsThatInflectAlike) {
    EXPECT_EQ(rule("abgeholt", "abholen"), rule("angelegt", "anlegen"));
    EXPECT_EQ(rule("gemacht", "machen"), rule("gesagt", "sagen"));
    EXPECT_EQ(rule("Running", "run"), rule("stopping", "stop"));
    EXPECT_EQ(rule("wohnte", "wohnen"), rule("LACHTE", "lachen"));
}

TEST(RuleFinderTest, leavesAnUnchangedWordToTheRuleThatChangesNothing) {
    EXPECT_TRUE(rule("house", "house").keepsAll());
    EXPECT_TRUE(rule("House", "house").keepsAll());
    EXPECT_TRUE(rule("1984", "1984").keepsAll());
}

TEST(RuleFinderTest, findsNoneForWhatIsNoWord) {
    EXPECT_FALSE(ruleBetween("", "a", UniversalPos::X, CaseRules::standard));
    EXPECT_FALSE(ruleBetween("a\xFF", "a", UniversalPos::X, CaseRules::standard));
    EXPECT_FALSE(ruleBetween("a", std::string(500, 'a'), UniversalPos::X, CaseRules::standard));
}

} // namespace
} // namespace lexiform::train
