#include "tools/train/sources/languages/TurkishWords.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

GoldToken finite(std::string_view form, std::string_view lemma, std::string_view features) {
    GoldToken token = word(form, VERB, lemma);
    token.features = features;
    return token;
}

constexpr std::string_view verbal = "Polarity=Pos|VerbForm=Fin";
constexpr std::string_view nominal = "VerbForm=Fin";

TEST(TurkishWords, makeVerbsOfParticiplesAndVerbalNounsOfTheCorpussVerbs) {
    Corpus corpus = {
        sentence({finite("geldi", "gel", verbal), word("gelen", ADJ, "gel"), word("gelmek", NOUN, "gel"),
                  word("gelip", ADV, "gel"), word("güzel", ADJ, "güzel")})};
    turkishSplit()(corpus);
    EXPECT_EQ(tagsOf(corpus[0]), "VERB VERB VERB VERB ADJ");
}

TEST(TurkishWords, leaveTheCasesOfNounsThatAreVerbsBesides) {
    Corpus corpus = {
        sentence({finite("yerdi", "yer", verbal), word("yer", NOUN, "yer"), word("yere", NOUN, "yer"),
                  word("yerde", NOUN, "yer"), word("yeren", ADJ, "yer")})};
    turkishSplit()(corpus);
    EXPECT_EQ(tagsOf(corpus[0]), "VERB NOUN NOUN NOUN VERB");
}

TEST(TurkishWords, splitCopulasOffNounsAndCompoundTenses) {
    Corpus corpus = {sentence({word("hasta", ADJ, "hasta"), finite("hastaydı", "hasta", nominal),
                               finite("gelmişti", "gel", verbal), finite("geldi", "gel", verbal)})};
    turkishSplit()(corpus);
    EXPECT_EQ(formsOf(corpus[0]), "hasta hasta ydı gelmiş ti geldi");
    EXPECT_EQ(tagsOf(corpus[0]), "ADJ ADJ AUX VERB AUX VERB");
    EXPECT_FALSE(corpus[0].tokens[1].spaceAfter);
}

TEST(TurkishWords, splitTheSuffixKi) {
    Corpus corpus = {sentence({word("evdeki", ADJ, "ev"), word("eski", ADJ, "eski")})};
    turkishSplit()(corpus);
    EXPECT_EQ(formsOf(corpus[0]), "evde ki eski");
    EXPECT_EQ(tagsOf(corpus[0]), "NOUN PART ADJ");
}

TEST(TurkishWords, keepTheDotOfTheLetterIInLowerCase) {
    Corpus corpus = {sentence({word("KISA", ADJ, "KISA"), word("İYİ", ADJ, "İYİ")})};
    turkishLowerCased()(corpus);
    EXPECT_EQ(formsOf(corpus[0]), "kısa iyi");
    EXPECT_EQ(corpus[0].tokens[1].lemma, "iyi");
}

} // namespace
} // namespace lexiform::train
