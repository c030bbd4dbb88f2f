#include "tools/train/corpora/ConlluReader.h"
#include "tests/tools/train/GoldWords.h"
#include "tests/tools/train/TextFile.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

Corpus read(const TextFolder& folder, std::string_view text) {
    const auto corpus = readConllu(folder.write("text.conllu", text));
    EXPECT_TRUE(corpus.succeeded());
    return corpus.succeeded() ? corpus.value() : Corpus{};
}

TEST(ConlluReader, readsTheWordsOfSentencesWithTheirAnnotation) {
    const TextFolder folder("readsTheWords");
    const Corpus corpus = read(folder, "# text = Ann sings.\n"
                                       "1\tAnn\tAnn\tPROPN\tNNP\t_\t_\t_\t_\tName=B-PER\n"
                                       "2\tsings\tsing\tVERB\tVBZ\tPerson=3|VerbForm=Fin\t_\t_\t_\t"
                                       "SpaceAfter=No\n"
                                       "3\t.\t.\tPUNCT\t.\t_\t_\t_\t_\t_\n"
                                       "\n");
    ASSERT_EQ(corpus.size(), 1U);
    EXPECT_EQ(tagsOf(corpus[0]), "PROPN VERB PUNCT");
    const GoldToken& ann = corpus[0].tokens[0];
    const GoldToken& sings = corpus[0].tokens[1];
    EXPECT_EQ(ann.name, NameLabel::beginsPerson);
    EXPECT_TRUE(ann.spaceAfter);
    EXPECT_EQ(sings.lemma, "sing");
    EXPECT_EQ(sings.finePos, "VBZ");
    EXPECT_EQ(sings.features, "Person=3|VerbForm=Fin");
    EXPECT_FALSE(sings.spaceAfter);
}

TEST(ConlluReader, cutsAContractionIntoWordsThatSpellIt) {
    const TextFolder folder("cutsAContraction");
    const Corpus corpus = read(folder, "1-2\tdon't\t_\t_\t_\t_\t_\t_\t_\t_\n"
                                       "1\tdo\tdo\tAUX\t_\t_\t_\t_\t_\t_\n"
                                       "2\tn't\tnot\tPART\t_\t_\t_\t_\t_\t_\n"
                                       "3\tgo\tgo\tVERB\t_\t_\t_\t_\t_\t_\n");
    ASSERT_EQ(corpus.size(), 1U);
    EXPECT_EQ(formsOf(corpus[0]), "do n't go");
    EXPECT_FALSE(corpus[0].tokens[0].spaceAfter);
    EXPECT_TRUE(corpus[0].tokens[1].spaceAfter);
}

TEST(ConlluReader, keepsAnyOtherContractionWholeWithWhatAllItsWordsAre) {
    const TextFolder folder("keepsAnyOther");
    const Corpus corpus = read(folder, "1-2\tdu\t_\t_\t_\t_\t_\t_\t_\tSpaceAfter=No\n"
                                       "1\tde\tde\tADP\t_\t_\t_\t_\t_\t_\n"
                                       "2\tle\tle\tDET\t_\t_\t_\t_\t_\t_\n");
    ASSERT_EQ(corpus.size(), 1U);
    ASSERT_EQ(formsOf(corpus[0]), "du");
    const GoldToken& du = corpus[0].tokens[0];
    EXPECT_EQ(du.pos, UniversalPos::ADP);
    EXPECT_EQ(du.lemma, "de");
    EXPECT_EQ(du.furtherPos, std::vector{UniversalPos::DET});
    EXPECT_EQ(du.furtherLemmas, std::vector<std::string>{"le"});
    EXPECT_FALSE(du.spaceAfter);
}

TEST(ConlluReader, takesAnUnderscoreForNoLemmaButThatOfAnUnderscore) {
    const TextFolder folder("takesAnUnderscore");
    const Corpus corpus = read(folder, "1\thouse\t_\tNOUN\t_\t_\t_\t_\t_\t_\n"
                                       "2\t_\t_\tPUNCT\t_\t_\t_\t_\t_\t_\n");
    ASSERT_EQ(corpus.size(), 1U);
    EXPECT_FALSE(corpus[0].tokens[0].lemma);
    EXPECT_EQ(corpus[0].tokens[1].lemma, "_");
}

TEST(ConlluReader, leavesOutEmptyNodesAndStartsParagraphsWhereTheFileDoes) {
    const TextFolder folder("leavesOutEmptyNodes");
    const Corpus corpus = read(folder, "# newpar\n"
                                       "1\tYes\tyes\tINTJ\t_\t_\t_\t_\t_\t_\n"
                                       "1.1\tdid\tdo\tVERB\t_\t_\t_\t_\t_\t_\n"
                                       "\n"
                                       "1\tNo\tno\tINTJ\t_\t_\t_\t_\t_\t_\n"
                                       "\n");
    ASSERT_EQ(corpus.size(), 2U);
    EXPECT_EQ(formsOf(corpus[0]), "Yes");
    EXPECT_TRUE(corpus[0].startsParagraph);
    EXPECT_FALSE(corpus[1].startsParagraph);
}

TEST(ConlluReader, saysWhichLineHasNotTenColumns) {
    const TextFolder folder("saysWhichLine");
    const auto file = folder.write("text.conllu", "1\tYes\tyes\tINTJ\t_\t_\t_\t_\t_\t_\n2\tand\n");
    const auto corpus = readConllu(file);
    ASSERT_FALSE(corpus.succeeded());
    EXPECT_EQ(corpus.fault(), file.string() + ":2: the line has not ten columns");
}

TEST(ConlluReader, failsOnAFileThatIsNotThere) {
    const TextFolder folder("failsOnAFile");
    EXPECT_FALSE(readConllu(folder.path() / "none.conllu").succeeded());
}

} // namespace
} // namespace lexiform::train
