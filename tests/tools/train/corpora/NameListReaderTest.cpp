#include "tools/train/corpora/NameListReader.h"
#include "tests/tools/train/GoldWords.h"
#include "tests/tools/train/TextFile.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

TEST(NameListReader, readsSentencesOfFormsWithNames) {
    const TextFolder folder("readsSentences");
    const auto corpus = readNameList(folder.write("names.tsv", "In\tO\nNew\tB-LOC\nYork\tI-LOC\n\nYes\tO\n"));
    ASSERT_TRUE(corpus.succeeded());
    ASSERT_EQ(corpus.value().size(), 2U);
    const GoldSentence& first = corpus.value()[0];
    EXPECT_EQ(formsOf(first), "In New York");
    EXPECT_EQ(first.tokens[1].name, NameLabel::beginsPlace);
    EXPECT_EQ(first.tokens[2].name, NameLabel::insidePlace);
    EXPECT_FALSE(first.tokens[0].pos);
}

TEST(NameListReader, beginsANameThatTheListOnlyContinues) {
    const TextFolder folder("beginsAName");
    const auto corpus = readNameList(folder.write("names.tsv", "Ann\tI-PER\nLee\tI-PER\n"));
    ASSERT_TRUE(corpus.succeeded());
    EXPECT_EQ(corpus.value()[0].tokens[0].name, NameLabel::beginsPerson);
    EXPECT_EQ(corpus.value()[0].tokens[1].name, NameLabel::insidePerson);
}

TEST(NameListReader, joinsAHandleOutsideNames) {
    const TextFolder folder("joinsAHandle");
    const auto corpus = readNameList(folder.write("names.tsv", "@\tB-PER\nann\tB-PER\nhi\tO\n"));
    ASSERT_TRUE(corpus.succeeded());
    EXPECT_EQ(formsOf(corpus.value()[0]), "@ann hi");
    EXPECT_EQ(corpus.value()[0].tokens[0].name, NameLabel::outside);
}

TEST(NameListReader, saysWhichLineHasNotTwoColumns) {
    const TextFolder folder("saysWhichLineOfNames");
    const auto file = folder.write("names.tsv", "Ann\tB-PER\nLee\n");
    const auto corpus = readNameList(file);
    ASSERT_FALSE(corpus.succeeded());
    EXPECT_EQ(corpus.fault(), file.string() + ":2: the line has not two columns");
}

} // namespace
} // namespace lexiform::train
