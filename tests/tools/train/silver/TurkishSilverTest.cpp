#include "tools/train/silver/TurkishSilver.h"
#include "tests/tools/train/GoldWords.h"
#include "tests/tools/train/TextFile.h"

#include <gtest/gtest.h>

#include <sstream>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

TurkishForms forms() {
    TurkishForms forms;
    forms.addRoot("gitmek", 'v');
    forms.addRoot("kitap", 'n');
    forms.addRoot("büyük", 'j');
    forms.addRoot("milyon", 'u');
    return forms;
}

TEST(TurkishSilver, correctsWhatDictionaryAndNamesTell) {
    GoldToken ankara = word("Ankara", NOUN, "Ankara");
    ankara.name = NameLabel::beginsPlace;
    Corpus corpus = {
        sentence({ankara, word("kitaplar", VERB, ""), word("giden", NOUN, ""), word("büyük", NOUN, ""),
                  word("pencere", VERB, ""), word(",", PUNCT, ""), word("milyon", NOUN, "")})};
    const TurkishForms dictionary = forms();
    TurkishCorrector(dictionary, {}).correct(corpus);
    EXPECT_EQ(tagsOf(corpus[0]), "PROPN NOUN VERB ADJ VERB PUNCT NUM");
}

TEST(TurkishSilver, keepsTheNounsThatAreMadeOfVerbs) {
    const TurkishForms dictionary = forms();
    Source source;
    source.corpus = {sentence({word("gidişler", NOUN, "gidiş"), word("giden", NOUN, "git")})};
    Corpus tagged = {sentence({word("Gidişler", NOUN, ""), word("gitmek", NOUN, "")})};
    const TurkishCorrector corrector(dictionary, {source});
    corrector.correct(source.corpus);
    corrector.correct(tagged);
    EXPECT_EQ(tagsOf(source.corpus[0]), "NOUN VERB");
    EXPECT_EQ(tagsOf(tagged[0]), "NOUN VERB");
}

GoldToken begins(std::string_view form) {
    return named(form, NameLabel::beginsPlace);
}

/// Ten times "kitap gitti .", and a corpus that has names alone.
LanguageSources sources() {
    LanguageSources sources;
    Source tagged{"tagged", {}, 1, 0, 0};
    for (int i = 0; i < 10; ++i)
        tagged.corpus.push_back(
            sentence({word("kitap", NOUN, "kitap"), word("gitti", VERB, "git"), word(".", PUNCT, ".")}));
    Source named{"named", {}, 0, 0, 1};
    named.corpus.push_back(sentence({begins("Ankara"), train::named("gitti", NameLabel::outside),
                                     train::named(".", NameLabel::outside)}));
    sources.training = {tagged, named};
    return sources;
}

TEST(TurkishSilver, tagsTheCorporaThatHaveNamesAlone) {
    const TextFolder folder("TurkishSilver");
    std::filesystem::create_directories(folder.path() / "tr" / "lexicon");
    folder.write("tr/lexicon/master-dictionary.dict", "gitmek\nkitap\n");
    folder.write("tr/lexicon/non-tdk.dict", "");
    LanguageSources given = sources();
    std::ostringstream log;
    EXPECT_EQ(addTurkishSilver(given, {}, folder.path(), log), std::nullopt);
    EXPECT_EQ(tagsOf(given.training[1].corpus[0]), "PROPN VERB PUNCT");
    EXPECT_GT(given.training[1].tagWeight, 0);
    EXPECT_LT(given.training[1].tagWeight, 1);
}

TEST(TurkishSilver, tagsTheOpenTextWhoseWordsTheDictionaryHas) {
    const TextFolder folder("TurkishSilver");
    folder.write("tr/lexicon/master-dictionary.dict", "gitmek\nkitap\n");
    folder.write("tr/lexicon/non-tdk.dict", "");
    LanguageSources given = sources();
    given.openTexts = {folder.write("modern.txt", "Kitap kitap gitti. The quick brown fox.\n")};
    std::ostringstream log;
    ASSERT_EQ(addTurkishSilver(given, {}, folder.path(), log), std::nullopt);
    ASSERT_EQ(given.training.size(), 3U);
    const Source& silver = given.training[2];
    ASSERT_EQ(silver.corpus.size(), 1U);
    EXPECT_EQ(tagsOf(silver.corpus[0]), "NOUN NOUN VERB PUNCT");
    EXPECT_GT(silver.tagWeight, 0);
    EXPECT_EQ(silver.nameWeight, 0);
}

TEST(TurkishSilver, tellsWhichOpenTextIsMissing) {
    const TextFolder folder("TurkishSilver");
    folder.write("tr/lexicon/master-dictionary.dict", "gitmek\n");
    folder.write("tr/lexicon/non-tdk.dict", "");
    LanguageSources given = sources();
    given.openTexts = {folder.path() / "none.txt"};
    std::ostringstream log;
    const auto fault = addTurkishSilver(given, {}, folder.path(), log);
    ASSERT_TRUE(fault.has_value());
    EXPECT_NE(fault->find("none.txt"), std::string::npos);
}

TEST(TurkishSilver, tellsWhichDictionaryIsMissing) {
    const TextFolder folder("TurkishSilver");
    LanguageSources given = sources();
    std::ostringstream log;
    const auto fault = addTurkishSilver(given, {}, folder.path(), log);
    ASSERT_TRUE(fault.has_value());
    EXPECT_NE(fault->find("master-dictionary.dict"), std::string::npos);
}

} // namespace
} // namespace lexiform::train
