#include "tools/train/silver/readText.h"
#include "tests/tools/train/GoldWords.h"
#include "tests/tools/train/TextFile.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

TEST(ReadText, cutsParagraphsIntoSentencesAndWords) {
    const TextFolder folder("ReadText");
    const auto file = folder.write("text.txt", "Geldi. Gitti mi?\n\nAnkara-İzmir yolu\n");
    const auto corpus = readText(file, "tr", 1000);
    ASSERT_TRUE(corpus.succeeded());
    ASSERT_EQ(corpus.value().size(), 3U);
    EXPECT_EQ(formsOf(corpus.value()[0]), "Geldi .");
    EXPECT_EQ(formsOf(corpus.value()[1]), "Gitti mi ?");
    EXPECT_EQ(formsOf(corpus.value()[2]), "Ankara - İzmir yolu");
    EXPECT_FALSE(corpus.value()[0].tokens[0].spaceAfter);
    EXPECT_TRUE(corpus.value()[0].tokens[1].spaceAfter);
    EXPECT_TRUE(corpus.value()[0].startsParagraph);
    EXPECT_FALSE(corpus.value()[1].startsParagraph);
    EXPECT_TRUE(corpus.value()[2].startsParagraph);
}

TEST(ReadText, takesItsShareFromEverywhere) {
    const TextFolder folder("ReadText");
    std::string text;
    for (int i = 0; i < 100; ++i)
        text += "Bir iki.\n";
    const auto corpus = readText(folder.write("text.txt", text + "Son.\n"), "tr", text.size() / 4);
    ASSERT_TRUE(corpus.succeeded());
    EXPECT_GT(corpus.value().size(), 20U);
    EXPECT_LT(corpus.value().size(), 30U);
}

TEST(ReadText, saysWhichTextCannotBeOpened) {
    const auto corpus = readText("/nowhere/text.txt", "tr", 1000);
    ASSERT_FALSE(corpus.succeeded());
    EXPECT_NE(corpus.fault().find("/nowhere/text.txt"), std::string::npos);
}

} // namespace
} // namespace lexiform::train
