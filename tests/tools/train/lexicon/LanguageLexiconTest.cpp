#include "tools/train/lexicon/LanguageLexicon.h"
#include "tests/tools/train/GoldWords.h"
#include "tests/tools/train/TextFile.h"
#include "tools/train/lexicon/WordClusters.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using namespace linguistics;
using enum linguistics::UniversalPos;

/// The lists that every language has, with little in them.
void writeLists(const TextFolder& folder) {
    for (const char* file : {"dist.female.first", "dist.male.first"})
        folder.write(std::string("mul/gazetteers/") + file, "MARY 2.6 2.6 1\n");
    for (const char* file : {"common-forenames-by-country.csv", "common-surnames-by-country.csv"})
        folder.write(std::string("mul/gazetteers/") + file, "Country,Rank\n");
    folder.write("mul/gazetteers/world-cities.csv",
                 "name,country,subcountry,geonameid\nKyiv,Ukraine,Kyiv City,1\n");
    folder.write("xx/lexicon/frequency_xx_50k.txt", "der 100\nhaus 50\nrot 20\n");
    folder.write("xx/text/open.txt", "der hund und der hund und der hund und der hund\n");
}

LanguageSources sourcesIn(const TextFolder& folder) {
    LanguageSources sources;
    sources.language = "xx";
    sources.openTexts = {folder.path() / "xx/text/open.txt"};
    return sources;
}

TEST(LanguageLexicon, knowsNamesAndPartsOfSpeechOfCommonWords) {
    const TextFolder folder("knowsNames");
    writeLists(folder);
    folder.write("xx/lexicon/xx_lemma_index.json", R"({"adj": ["rot", "selten"], "noun": ["haus"]})");
    const auto lexicon = lexiconOf(sourcesIn(folder), folder.path());
    ASSERT_TRUE(lexicon.succeeded());
    const Lexicon& words = lexicon.value();
    EXPECT_EQ(words.at("mary").lists, givenNames);
    EXPECT_EQ(words.at("kyiv").lists, cityNames);
    EXPECT_NE(words.at("rot").ambiguity, 0);
    EXPECT_NE(words.at("haus").ambiguity, words.at("rot").ambiguity);
    EXPECT_EQ(words.count("selten"), 0U) << "a dictionary's rare words are left out";
}

TEST(LanguageLexicon, clustersTheWordsOfOpenTextAndTreebanks) {
    const TextFolder folder("clustersTheWords");
    writeLists(folder);
    LanguageSources sources = sourcesIn(folder);
    Source treebank{"xx-train", Corpus(4, sentence({word("Hund", NOUN, "Hund")})), 1};
    sources.training.push_back(treebank);
    const auto lexicon = lexiconOf(sources, folder.path());
    ASSERT_TRUE(lexicon.succeeded());
    ASSERT_EQ(lexicon.value().count("hund"), 1U) << "4 times in the text, 12 in the thrice counted treebank";
    EXPECT_NE(lexicon.value().at("hund").cluster, 0);
    EXPECT_EQ(lexicon.value().count("und"), 0U) << "too seldom";
}

TEST(LanguageLexicon, saysWhichFileIsMissing) {
    const TextFolder folder("saysWhichListIsMissing");
    const auto lexicon = lexiconOf(sourcesIn(folder), folder.path());
    ASSERT_FALSE(lexicon.succeeded());
    EXPECT_NE(lexicon.fault().find("frequency_xx_50k.txt"), std::string::npos);
}

TEST(LexiconBuilder, makesAmbiguityClassesOfTheTagsOfAText) {
    LexiconBuilder builder;
    Corpus corpus;
    for (const char* tag : {"NN", "NN", "VB", "VB", "VB"}) {
        for (const char* form : {"Run", "walk"}) {
            GoldToken token = named(form, NameLabel::outside);
            token.finePos = tag;
            corpus.push_back(sentence({token}));
        }
    }
    builder.addTaggedText(corpus);
    const Lexicon lexicon = builder.build();
    EXPECT_NE(lexicon.at("run").ambiguity, 0);
    EXPECT_EQ(lexicon.at("run").ambiguity, lexicon.at("walk").ambiguity);
    EXPECT_LT(lexicon.at("run").ambiguity, LexiconBuilder::classCount());
}

TEST(WordClusters, putWordsOfLikeContextsTogether) {
    WordClusters clusters(3, 1);
    for (int i = 0; i < 20; ++i)
        for (const char* form : {"the", i % 2 == 0 ? "cat" : "dog", i % 4 < 2 ? "sits" : "runs", ""})
            clusters.add(form);
    const auto found = clusters.build(6);
    EXPECT_EQ(found.at("cat"), found.at("dog"));
    EXPECT_EQ(found.at("sits"), found.at("runs"));
    EXPECT_NE(found.at("cat"), found.at("sits"));
}

} // namespace
} // namespace lexiform::train
