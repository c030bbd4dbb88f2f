#include "analysis/WordLookUp.h"

#include "tests/support/ScriptedTagger.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

std::string around(const std::string& text, std::size_t byte) {
    return std::string(substring(text, paragraphAround(text, byte)));
}

TEST(WordLookUp, tagsTheParagraphAlone) {
    const auto calls = std::make_shared<TaggerCalls>();
    WordLookUp lookUp(std::make_unique<ScriptedTagger>(ScriptedTagger::Script{{"cat", "Noun"}}, calls),
                      "one\n\ncat two\n\nthree");
    ASSERT_TRUE(lookUp.at(6));
    EXPECT_EQ(lookUp.at(6)->type, "Noun");
    for (const TextRange range : calls->ranges)
        EXPECT_EQ(range, (TextRange{5, 9}));
}

TEST(WordLookUp, knowsNothingPastTheEnd) {
    WordLookUp lookUp(
        std::make_unique<ScriptedTagger>(ScriptedTagger::Script{}, std::make_shared<TaggerCalls>()), "one");
    EXPECT_FALSE(lookUp.at(3));
}

TEST(WordLookUp, takesAParagraphFromBlankLineToBlankLine) {
    const std::string text = "first\nline\n\nsecond\nline\n \r\nthird";
    EXPECT_EQ(around(text, 0), "first\nline\n\n");
    EXPECT_EQ(around(text, 8), "first\nline\n\n");
    EXPECT_EQ(around(text, 12), "second\nline\n \r\n");
    EXPECT_EQ(around(text, 20), "second\nline\n \r\n");
    EXPECT_EQ(around(text, text.size() - 1), "third");
}

TEST(WordLookUp, endsAtALineInATextWithoutBlankLines) {
    std::string text;
    for (int line = 0; line < 20000; ++line)
        text += "a line\n";
    const std::string part = around(text, 70003);
    EXPECT_EQ(part, "a line\n");
}

TEST(WordLookUp, keepsWithinALineThatHasNoEnd) {
    std::string text;
    for (int letter = 0; letter < 100000; ++letter)
        text += "é";
    const TextRange part = paragraphAround(text, 100001);
    EXPECT_LE(part.length, 66000U);
    EXPECT_EQ(part.start % 2, 0U);
    EXPECT_EQ(part.end() % 2, 0U);
    EXPECT_LE(part.start, 100001U);
}

} // namespace
} // namespace lexiform
