#include "tools/train/sources/Sources.h"
#include "tests/tools/train/GoldWords.h"
#include "tests/tools/train/TextFile.h"
#include "tools/train/sources/rules/Preparations.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

// Sentences of six words, each "<first> b c d e f".
std::string treebank(std::initializer_list<const char*> firsts, std::string_view miscOfFirst = "_") {
    std::string text;
    for (const char* first : firsts) {
        int id = 1;
        for (const char* form : {first, "b", "c", "d", "e", "f"}) {
            text += std::to_string(id) + "\t" + form + "\t" + form + "\tNOUN\t_\t_\t_\t_\t_\t";
            text += std::string(id == 1 ? miscOfFirst : "_") + "\n";
            ++id;
        }
        text += "\n";
    }
    return text;
}

TEST(Sources, haveTheWeightsRulesAndTextsOfTheirRecipe) {
    const TextFolder folder("haveTheWeights");
    folder.write("a-train.conllu", treebank({"a"}));
    folder.write("a-dev.conllu", treebank({"z"}));
    Recipe recipe;
    recipe.training = {{.file = "a-train.conllu",
                        .tagWeight = 1,
                        .lemmaWeight = 0.5F,
                        .hasSpacing = true,
                        .rules = {{form("a"), toTag(DET)}}}};
    recipe.development = {"a-dev.conllu"};
    recipe.openTexts = {"text/open.txt"};
    const auto read = sourcesBy(recipe, "xx", folder.path());
    ASSERT_TRUE(read.succeeded());
    const LanguageSources& sources = read.value();
    EXPECT_EQ(sources.language, "xx");
    ASSERT_EQ(sources.training.size(), 1U);
    EXPECT_EQ(sources.training[0].name, "a-train");
    EXPECT_EQ(sources.training[0].lemmaWeight, 0.5F);
    EXPECT_TRUE(sources.training[0].hasSpacing);
    EXPECT_EQ(tagsOf(sources.training[0].corpus.at(0)), "DET NOUN NOUN NOUN NOUN NOUN");
    ASSERT_EQ(sources.development.size(), 1U);
    EXPECT_EQ(sources.development[0].name, "a-dev");
    EXPECT_EQ(sources.openTexts, std::vector{folder.path() / "text/open.txt"});
}

TEST(Sources, trainOnNoSentenceTwiceAndOnNoneOfTheDevelopmentParts) {
    const TextFolder folder("trainOnNoSentenceTwice");
    folder.write("a-train.conllu", treebank({"a", "z", "a"}));
    folder.write("b-train.conllu", treebank({"a", "b"}));
    folder.write("a-dev.conllu", treebank({"z"}));
    Recipe recipe;
    recipe.training = {{.file = "a-train.conllu", .tagWeight = 1},
                       {.file = "b-train.conllu", .tagWeight = 1}};
    recipe.development = {"a-dev.conllu"};
    const auto read = sourcesBy(recipe, "xx", folder.path());
    ASSERT_TRUE(read.succeeded());
    ASSERT_EQ(read.value().training.size(), 2U);
    ASSERT_EQ(read.value().training[0].corpus.size(), 1U);
    EXPECT_EQ(formsOf(read.value().training[0].corpus[0]), "a b c d e f");
    ASSERT_EQ(read.value().training[1].corpus.size(), 1U);
    EXPECT_EQ(formsOf(read.value().training[1].corpus[0]), "b b c d e f");
}

TEST(Sources, keepTheNamesOfASentenceThatIsTaggedElsewhere) {
    const TextFolder folder("keepTheNames");
    folder.write("a-train.conllu", treebank({"a"}));
    folder.write("b-train.conllu", treebank({"a", "b"}, "Name=B-PER"));
    Recipe recipe;
    recipe.training = {{.file = "a-train.conllu", .tagWeight = 1},
                       {.file = "b-train.conllu", .tagWeight = 1, .nameWeight = 2}};
    const auto read = sourcesBy(recipe, "xx", folder.path());
    ASSERT_TRUE(read.succeeded());
    ASSERT_EQ(read.value().training.size(), 3U);
    const Source& names = read.value().training[2];
    EXPECT_EQ(names.tagWeight, 0);
    EXPECT_EQ(names.nameWeight, 2);
    ASSERT_EQ(names.corpus.size(), 1U);
    EXPECT_EQ(names.corpus[0].tokens[0].name, NameLabel::beginsPerson);
}

TEST(Sources, leaveTheDevelopmentPartsAsTheyAreButForTheirTokens) {
    const TextFolder folder("leaveTheDevelopmentParts");
    folder.write("a-dev.conllu", treebank({"b"}));
    Recipe recipe;
    recipe.development = {"a-dev.conllu", {"a-dev.conllu", {contracted("b b bb")}}};
    const auto read = sourcesBy(recipe, "xx", folder.path());
    ASSERT_TRUE(read.succeeded());
    EXPECT_EQ(formsOf(read.value().development.at(0).corpus.at(0)), "b b c d e f");
    EXPECT_EQ(formsOf(read.value().development.at(1).corpus.at(0)), "bb c d e f");
}

TEST(Sources, readListsOfNames) {
    const TextFolder folder("readListsOfNames");
    folder.write("names/list.tsv", "Ann\tB-PER\n");
    Recipe recipe;
    recipe.training = {{.file = "names/list.tsv", .nameWeight = 1}};
    const auto read = sourcesBy(recipe, "xx", folder.path());
    ASSERT_TRUE(read.succeeded());
    EXPECT_EQ(read.value().training.at(0).name, "list");
    EXPECT_EQ(read.value().training[0].corpus.size(), 1U);
}

TEST(Sources, failOnAMissingFileAndOnAnUnknownLanguage) {
    const TextFolder folder("failOnAMissingFile");
    Recipe recipe;
    recipe.training = {{.file = "none.conllu", .tagWeight = 1}};
    EXPECT_FALSE(sourcesBy(recipe, "xx", folder.path()).succeeded());
    const auto unknown = sourcesOf("tlh", folder.path());
    ASSERT_FALSE(unknown.succeeded());
    EXPECT_EQ(unknown.fault(), "no corpora are known for the language tlh");
}

TEST(Sources, nameEveryLanguageOnce) {
    const auto languages = sourceLanguages();
    EXPECT_EQ(std::set<std::string>(languages.begin(), languages.end()).size(), languages.size());
    EXPECT_EQ(languages.size(), 19U);
}

} // namespace
} // namespace lexiform::train
