#include "base/AttributedText.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

using Runs = std::vector<AttributedText::Run>;

TEST(AttributedText, isEmptyAtFirst) {
    const AttributedText text;
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.string(), "");
    EXPECT_TRUE(text.runs().empty());
}

TEST(AttributedText, mergesAdjacentPiecesOfOneColour) {
    AttributedText text;
    text.append("sat", Colour::red);
    text.append("down", Colour::red);
    text.append(" ", Colour::gray);
    EXPECT_EQ(text.string(), "satdown ");
    EXPECT_EQ(text.runs(), (Runs{{7, Colour::red}, {8, Colour::gray}}));
}

TEST(AttributedText, keepsNoRunForAnEmptyPiece) {
    AttributedText text("", Colour::blue);
    text.append("", Colour::red);
    EXPECT_TRUE(text.runs().empty());
    EXPECT_EQ(text, AttributedText());
}

TEST(AttributedText, appendsAnotherTextWithItsColours) {
    AttributedText text("cat", Colour::blue);
    AttributedText tail("s", Colour::blue);
    tail.append("!", Colour::gray);
    text.append(tail);
    EXPECT_EQ(text.string(), "cats!");
    EXPECT_EQ(text.runs(), (Runs{{4, Colour::blue}, {5, Colour::gray}}));
}

TEST(AttributedText, canBeAppendedToItself) {
    AttributedText text("a", Colour::brown);
    text.append("b", Colour::blue);
    text.append(text);
    EXPECT_EQ(text.string(), "abab");
    EXPECT_EQ(text.runs(),
              (Runs{{1, Colour::brown}, {2, Colour::blue}, {3, Colour::brown}, {4, Colour::blue}}));
}

} // namespace
} // namespace lexiform
