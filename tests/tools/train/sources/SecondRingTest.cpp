#include "tests/tools/train/GoldWords.h"
#include "tools/train/sources/languages/Recipes.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

/// `text` after the rules of the first training file whose name holds `file`.
GoldSentence ruled(const Recipe& recipe, std::string_view file, GoldSentence text) {
    for (const FileRecipe& one : recipe.training)
        if (one.file.find(file) != std::string::npos) {
            apply(one.rules, text);
            return text;
        }
    ADD_FAILURE() << "no file " << file;
    return text;
}

std::string tagsBy(const Recipe& recipe, std::string_view file, const GoldSentence& text) {
    return tagsOf(ruled(recipe, file, text));
}

TEST(Danish, toHaveIsAuxiliaryBeforeAParticipleOnly) {
    const auto book = sentence({word("Hun", PRON, "hun"), word("har", AUX, "have"), word("en", DET, "en"),
                                word("bog", NOUN, "bog"), word(".", PUNCT, ".")});
    EXPECT_EQ(tagsBy(recipes::danish(), "sigmorphon", book), "PRON VERB DET NOUN PUNCT");
    const auto read =
        sentence({word("Hun", PRON, "hun"), word("har", VERB, "have"), word("læst", VERB, "læse")});
    EXPECT_EQ(tagsBy(recipes::danish(), "sigmorphon", read), "PRON AUX VERB");
}

TEST(Danish, whatThereIsExists) {
    const auto text = sentence(
        {word("Der", ADV, "der"), word("er", AUX, "være"), word("en", DET, "en"), word("kat", NOUN, "kat")});
    EXPECT_EQ(tagsBy(recipes::danish(), "sigmorphon", text), "PRON VERB DET NOUN");
}

TEST(Swedish, toHaveIsAuxiliaryBeforeASupine) {
    const auto text = sentence({word("Vi", PRON, "vi"), word("har", VERB, "ha"), word("sett", VERB, "se"),
                                word("samma", DET, "samma"), word("hund", NOUN, "hund")});
    EXPECT_EQ(tagsBy(recipes::swedish(), "talbanken", text), "PRON AUX VERB ADJ NOUN");
}

TEST(Norwegian, prepositionsStayPrepositionsBeforeAnInfinitive) {
    const auto text = sentence({word("Takk", NOUN, "takk"), word("for", CCONJ, "for"),
                                word("at", SCONJ, "at"), word("du", PRON, "du"), word("kom", VERB, "komme")});
    EXPECT_EQ(tagsBy(recipes::norwegian(), "bokmaal", text), "NOUN ADP SCONJ PRON VERB");
}

TEST(Norwegian, somJoinsAClauseOrCompares) {
    const auto clause =
        sentence({word("mannen", NOUN, "mann"), word("som", PRON, "som"), word("sov", VERB, "sove")});
    EXPECT_EQ(tagsBy(recipes::norwegian(), "bokmaal", clause), "NOUN SCONJ VERB");
    const auto thing =
        sentence({word("hvit", ADJ, "hvit"), word("som", PRON, "som"), word("snø", NOUN, "snø")});
    EXPECT_EQ(tagsBy(recipes::norwegian(), "bokmaal", thing), "ADJ ADP NOUN");
}

TEST(Dutch, toBecomeIsAuxiliaryWithAParticipleOnly) {
    const auto passive = sentence({word("Het", PRON, "het"), word("werd", VERB, "worden"),
                                   word("gebouwd", VERB, "bouwen"), word(".", PUNCT, ".")});
    EXPECT_EQ(tagsBy(recipes::dutch(), "sigmorphon", passive), "PRON AUX VERB PUNCT");
    const auto copula =
        sentence({word("Het", PRON, "het"), word("werd", AUX, "worden"), word("koud", ADJ, "koud")});
    EXPECT_EQ(tagsBy(recipes::dutch(), "sigmorphon", copula), "PRON VERB ADJ");
}

TEST(Dutch, ordinalsAndPossessives) {
    const auto text = sentence({word("zijn", DET, "zijn"), word("eerste", NUM, "één"), word("op", ADP, "op"),
                                word("af_lopen", VERB, "af_lopen")});
    const GoldSentence result = ruled(recipes::dutch(), "lassysmall", text);
    EXPECT_EQ(tagsOf(result), "PRON ADJ ADP VERB");
    EXPECT_EQ(result.tokens[3].lemma, "aflopen");
}

TEST(Romanian, toBeIsAuxiliaryAndCaJoinsAClauseOrCompares) {
    const auto clause =
        sentence({word("este", VERB, "fi"), word("bine", ADV, "bine"), word("ca", ADV, "ca"),
                  word("el", PRON, "el"), word("să", PART, "să"), word("vină", VERB, "veni")});
    EXPECT_EQ(tagsBy(recipes::romanian(), "salvaged", clause), "AUX ADV SCONJ PRON PART VERB");
    const auto thing = sentence({word("alb", ADJ, "alb"), word("ca", ADV, "ca"), word("varul", NOUN, "var")});
    EXPECT_EQ(tagsBy(recipes::romanian(), "salvaged", thing), "ADJ ADP NOUN");
}

TEST(Finnish, contractedConjunctionsKeepTheConjunctionsClass) {
    const auto text = sentence({word("Sanoin", VERB, "sanoa"), word("ettei", VERB, "ettei"),
                                word("ole", VERB, "olla"), word("aamupalaa", NOUN, "aamu#pala")});
    const GoldSentence result = ruled(recipes::finnish(), "conll2018", text);
    EXPECT_EQ(tagsOf(result), "VERB SCONJ AUX NOUN");
    EXPECT_EQ(result.tokens[3].lemma, "aamupala");
}

TEST(Catalan, contractionsHaveTheLemmaOfTheirFirstWord) {
    const auto text = sentence({word("Hi", PRON, "hi"), word("ha", AUX, "haver"), word("pa", NOUN, "pa"),
                                word("del", ADP, "del"), word("forn", NOUN, "forn")});
    const GoldSentence result = ruled(recipes::catalan(), "ancora", text);
    EXPECT_EQ(tagsOf(result), "PRON VERB NOUN ADP NOUN");
    EXPECT_EQ(result.tokens[3].lemma, "de");
}

TEST(Indonesian, auxiliariesAndPurpose) {
    const auto text = sentence({word("Dia", PRON, ""), word("telah", ADV, ""), word("datang", VERB, ""),
                                word("untuk", ADP, ""), word("belajar", VERB, "")});
    EXPECT_EQ(tagsBy(recipes::indonesian(), "gsd", text), "PRON AUX VERB SCONJ VERB");
}

TEST(Chinese, copulaAspectAndLinkingAdverbs) {
    const auto text = sentence({word("他", PRON, "他"), word("也", ADV, "也"), word("是", VERB, "是"),
                                word("来", VERB, "来"), word("的", PART, "的"), word("人", NOUN, "人")});
    EXPECT_EQ(tagsBy(recipes::chinese(), "sigmorphon", text), "PRON SCONJ AUX VERB SCONJ NOUN");
}

TEST(Korean, measuresAreAsTheirTreebankHasThem) {
    const auto text =
        sentence({word("10", NUM, "10"), word("㎞", SYM, "㎞"), word("그리고", CCONJ, "그리고")});
    EXPECT_EQ(tagsBy(recipes::korean(), "gsd", text), "NUM PUNCT ADV");
}

TEST(Vietnamese, directionsAreVerbsAndPlacesNouns) {
    const auto text = sentence(
        {word("đi", VERB, "đi"), word("ra", ADV, "ra"), word("sau", ADP, "sau"), word("nhà", NOUN, "nhà")});
    EXPECT_EQ(tagsBy(recipes::vietnamese(), "vtb", text), "VERB VERB NOUN NOUN");
}

TEST(Russian, latinWordsAreForeignAndRomanFiguresOrdinals) {
    const auto text =
        sentence({word("Фирма", NOUN, "фирма"), word("Blue", PROPN, "blue"), word("XX", NUM, "xx"),
                  word("является", AUX, "являться"), word("россией", PROPN, "россия")});
    EXPECT_EQ(tagsBy(recipes::russian(), "conll2018", text), "NOUN X ADJ VERB PROPN");
}

TEST(Russian, properNounsHaveTheirFormsCapitals) {
    const auto text = sentence({word("В", ADP, "в"), word("России", PROPN, "россия")});
    EXPECT_EQ(ruled(recipes::russian(), "sigmorphon", text).tokens[1].lemma, "Россия");
}

TEST(Russian, commonNounsAreNoOrganizations) {
    const auto text = sentence({named("компании", NameLabel::beginsOrganization),
                                named("и", NameLabel::outside), named("банка", NameLabel::beginsOrganization),
                                named("Москвы", NameLabel::insideOrganization)});
    const GoldSentence result = ruled(recipes::russian(), "factrueval", text);
    EXPECT_EQ(result.tokens[0].name, NameLabel::outside);
    EXPECT_EQ(result.tokens[2].name, NameLabel::beginsOrganization);
    EXPECT_EQ(result.tokens[3].name, NameLabel::insideOrganization);
}

TEST(Turkish, wordsHaveTheClassesOfRunningTexts) {
    const auto text = sentence({word("burada", ADV, "bura"), word("çok", ADV, "çok"), word("var", ADJ, "var"),
                                word("çünkü", CCONJ, "çünkü")});
    EXPECT_EQ(tagsBy(recipes::turkish(), "framenet", text), "PRON ADV NOUN SCONJ");
}

} // namespace
} // namespace lexiform::train
