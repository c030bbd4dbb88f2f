#include "tests/linguistics/AnalysedText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

std::vector<std::string> paragraphsOf(const std::string& text) {
    std::vector<std::string> result;
    for (const Paragraph& paragraph : analysedPlainly(text).paragraphs)
        result.emplace_back(substring(text, paragraph.range));
    return result;
}

using testing::ElementsAre;

TEST(Paragraphs, endAfterABlankLine) {
    EXPECT_THAT(paragraphsOf("a\n\nb"), ElementsAre("a\n\n", "b"));
}

TEST(Paragraphs, keepAllLineBreaksThatEndThem) {
    EXPECT_THAT(paragraphsOf("a\r\n \t\r\n\r\n  b\n"), ElementsAre("a\r\n \t\r\n\r\n", "  b\n"));
}

TEST(Paragraphs, goOnAfterASingleLineBreakOfAnyKind) {
    for (const char* lineBreak : {"\n", "\r\n", "\r", "\v", "\f", "\xC2\x85", "\xE2\x80\xA8"})
        EXPECT_EQ(paragraphsOf(std::string("a") + lineBreak + "b").size(), 1U) << lineBreak;
}

TEST(Paragraphs, endAfterAParagraphSeparator) {
    EXPECT_THAT(paragraphsOf("a\xE2\x80\xA9"
                             "b"),
                ElementsAre("a\xE2\x80\xA9", "b"));
}

TEST(Paragraphs, areCutAtALineBreakWhenTheyGrowTooLong) {
    std::string lines;
    for (int i = 0; i < 2000; ++i)
        lines += "twenty bytes of text\n";
    const auto paragraphs = paragraphsOf(lines);
    ASSERT_GT(paragraphs.size(), 1U);
    EXPECT_EQ(paragraphs.front().back(), '\n');
}

TEST(Paragraphs, areNoneInAnEmptyText) {
    EXPECT_TRUE(paragraphsOf("").empty());
}

} // namespace
} // namespace lexiform::linguistics
