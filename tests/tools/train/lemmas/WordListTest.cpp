#include "tests/tools/train/TextFile.h"
#include "tools/train/lemmas/AffixDictionary.h"
#include "tools/train/lemmas/IndonesianVoices.h"
#include "tools/train/lemmas/JsonPaths.h"
#include "tools/train/lemmas/LexiconReader.h"
#include "tools/train/lemmas/TurkishParadigms.h"
#include "tools/train/lemmas/TurkishRoots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <set>

namespace lexiform::train {
namespace {

namespace fs = std::filesystem;
using linguistics::UniversalPos;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

std::vector<std::string> stringsOf(std::string_view json) {
    std::vector<std::string> seen;
    forEachJsonString(json, [&](const std::vector<std::string>& names, const std::string& value) {
        std::string path;
        for (const std::string& name : names)
            path += name + "/";
        seen.push_back(path + value);
    });
    return seen;
}

TEST(JsonPathsTest, tellsEachStringWithTheNamesThatLeadToIt) {
    EXPECT_THAT(
        stringsOf(R"({"noun": {"mice": ["mouse"], "feet": ["foot", "feet"]}, "adj": ["old", "new"]})"),
        ElementsAre("noun/mice/mouse", "noun/feet/foot", "noun/feet/feet", "adj/old", "adj/new"));
    EXPECT_THAT(stringsOf(R"({"a:b,{": "c\"d", "\u00e9": "o\u00edr"})"), ElementsAre("a:b,{/c\"d", "é/oír"));
}

TEST(JsonPathsTest, readsWhatIsCutOffAsFarAsItGoes) {
    EXPECT_THAT(stringsOf(R"({"a": "b", "c": "d)"), ElementsAre("a/b"));
    EXPECT_THAT(stringsOf("}}]]\"\\"), ElementsAre());
}

TEST(AffixDictionaryTest, givesTheFormsThatTheFlagsOfAWordAllow) {
    const fs::path folder = fs::path(testing::TempDir()) / "AffixDictionaryTest";
    fs::create_directories(folder);
    std::ofstream(folder / "x.aff")
        << "SET UTF-8\nSFX S Y 2\nSFX S 0 s [^sy]\nSFX S y ies [^aeo]y\nPFX R Y 1\nPFX R 0 re .\n";
    std::ofstream(folder / "x.dic") << "3\ncat/S\nberry/RS\nboy/S\nmoss/S\nsole\n";
    std::vector<std::string> forms;
    forEachAffixedForm(folder / "x.aff", folder / "x.dic", [&](const AffixedForm& form) {
        if (!form.flag.empty()) forms.push_back(std::string(form.form) + "<" + std::string(form.word));
    });
    fs::remove_all(folder);
    EXPECT_THAT(forms, ElementsAre("cats<cat", "berries<berry"));
}

std::set<std::string> nounForms(std::string_view root) {
    std::set<std::string> forms;
    forEachTurkishNounForm(root, [&](const std::string& form) { forms.insert(form); });
    return forms;
}

std::set<std::string> verbForms(std::string_view root) {
    std::set<std::string> forms;
    forEachTurkishVerbForm(root, [&](const std::string& form) { forms.insert(form); });
    return forms;
}

TEST(TurkishParadigmsTest, followsTheHarmonyOfVowels) {
    for (const char* form : {"ev", "evler", "evde", "evimizden", "evlerini"})
        EXPECT_THAT(nounForms("ev"), Contains(form));
    EXPECT_THAT(nounForms("okul"), Contains("okulumuzda"));
    EXPECT_THAT(nounForms("araba"), Contains("arabasının"));
    EXPECT_THAT(nounForms("göz"), Contains("gözlerinde"));
    EXPECT_THAT(nounForms("ev"), Not(Contains("evlar")));
}

TEST(TurkishParadigmsTest, softensTheLastConsonant) {
    for (const char* form : {"kitabı", "kitaptan", "kitaplar"})
        EXPECT_THAT(nounForms("kitap"), Contains(form));
    EXPECT_THAT(nounForms("renk"), Contains("rengi"));
}

TEST(TurkishParadigmsTest, conjugates) {
    for (const char* form :
         {"geldi", "geldim", "geliyor", "gelmiş", "gelecek", "gelmedi", "gelen", "gelince", "gelmek"})
        EXPECT_THAT(verbForms("gel"), Contains(form));
    for (const char* form : {"başladı", "başlıyor", "başlayacak", "başladığını"})
        EXPECT_THAT(verbForms("başla"), Contains(form));
    EXPECT_THAT(verbForms("git"), Contains("gidiyor"));
}

TEST(IndonesianVoicesTest, givesBackTheLetterThatAPrefixSwallowed) {
    EXPECT_EQ(indonesianPassive("memilih", "pilih"), "dipilih");
    EXPECT_EQ(indonesianPassive("menulis", "tulis"), "ditulis");
    EXPECT_EQ(indonesianPassive("menyewa", "sewa"), "disewa");
    EXPECT_EQ(indonesianPassive("mengirimkan", "kirim"), "dikirimkan");
}

TEST(IndonesianVoicesTest, keepsWhatStandsAroundTheRoot) {
    EXPECT_EQ(indonesianPassive("menggunakan", "guna"), "digunakan");
    EXPECT_EQ(indonesianPassive("mengobati", "obat"), "diobati");
    EXPECT_EQ(indonesianPassive("memperbaiki", "baik"), "diperbaiki");
    EXPECT_EQ(indonesianPassive("mengecat", "cat"), "dicat");
    EXPECT_EQ(indonesianPassive("melihat", "lihat"), "dilihat");
}

TEST(IndonesianVoicesTest, givesNothingForWordsThatAreMadeOtherwise) {
    EXPECT_EQ(indonesianPassive("berjalan", "jalan"), std::nullopt);
    EXPECT_EQ(indonesianPassive("meja", "meja"), std::nullopt);
    EXPECT_EQ(indonesianPassive("", ""), std::nullopt);
}

std::set<std::string> formsOf(const TurkishRoot& root) {
    std::set<std::string> forms;
    forEachTurkishForm(root, [&](const std::string& form) { forms.insert(form); });
    return forms;
}

TEST(TurkishRootsTest, readsWhatADictionarySaysOfRoots) {
    const TextFolder folder("readsWhatADictionarySaysOfRoots");
    const auto roots = readTurkishRoots(folder.write(
        "roots.dict", "gelmek\nyemek [P:Noun]\nkısım [A:LastVowelDrop]\nsaat [A:InverseHarmony]\n"));
    ASSERT_EQ(roots.size(), 4U);
    EXPECT_TRUE(roots[0].isVerb);
    EXPECT_EQ(roots[0].lemma, "gel");
    EXPECT_FALSE(roots[1].isVerb);
    EXPECT_EQ(roots[1].lemma, "yemek");
    EXPECT_TRUE(roots[2].dropsVowel);
    EXPECT_TRUE(roots[3].takesFrontVowels);
}

TEST(TurkishRootsTest, dropsTheLastVowelWhereTheRootDoes) {
    EXPECT_THAT(formsOf({"kısım", false, true}), Contains("kısmı"));
    EXPECT_THAT(formsOf({"kısım", false, true}), Contains("kısımda"));
    EXPECT_THAT(formsOf({"takım", false, false}), Not(Contains("takmı")));
}

TEST(TurkishRootsTest, putsFrontVowelsAfterRootsThatAskForThem) {
    for (const char* form : {"saat", "saatler", "saatinde"})
        EXPECT_THAT(formsOf({"saat", false, false, true}), Contains(form));
    EXPECT_THAT(formsOf({"rol", false, false, true}), Contains("rolü"));
}

TEST(LexiconReaderTest, takesATurkishRootForItselfBeforeAFormOfAnother) {
    const TextFolder folder("takesATurkishRootForItself");
    folder.write("roots.dict", "yay\nyayın\nyaymak\n");
    LexiconReader reader(folder.path());
    reader.readTurkish("roots.dict", {"yayın", "yaya"});
    std::vector<std::string> nouns;
    for (const LexiconLemma& line : std::move(reader).lines())
        if (line.pos == UniversalPos::NOUN) nouns.push_back(line.form + "<" + line.lemma);
    EXPECT_THAT(nouns, testing::UnorderedElementsAre("yaya<yay", "yayın<yayın"));
}

TEST(LexiconReaderTest, keepsToTheWordsThatAreSettled) {
    const TextFolder folder("keepsToTheWordsThatAreSettled");
    folder.write("table.json", R"({"merupakan": "rupa", "memilih": "pilih"})");
    LexiconReader reader(folder.path());
    reader.readWord("merupakan", "merupakan", UniversalPos::VERB);
    reader.readTable("table.json", {UniversalPos::VERB});
    reader.addIndonesianPassives();
    std::vector<std::string> lines;
    for (const LexiconLemma& line : std::move(reader).lines())
        lines.push_back(line.form + "<" + line.lemma);
    EXPECT_THAT(lines, ElementsAre("merupakan<merupakan", "rupa<rupa", "memilih<pilih", "pilih<pilih",
                                   "dipilih<pilih"));
}

} // namespace
} // namespace lexiform::train
