#include "tools/lexiform-cli/AnsiWriter.h"

#include "tests/tools/lexiform-cli/HandMadeText.h"

#include <gtest/gtest.h>

#include <regex>

namespace lexiform::cli {
namespace {

using enum linguistics::UniversalPos;

std::string written(const HandMadeText& made) {
    AnsiWriter writer;
    std::string out;
    writer.paragraph(made.paragraph, made.text, out);
    writer.endText(out);
    return out;
}

std::string withoutColours(const std::string& out) {
    return std::regex_replace(out, std::regex("\x1b\\[[0-9;]*m"), "");
}

TEST(AnsiWriter, writesEveryTokenInTheColourOfItsClass) {
    HandMadeText made;
    made.word("cats", NOUN, true).space(" ").word("sleep", VERB).lineBreak("\n");
    EXPECT_EQ(written(made), "\x1b[38;5;33mcats \x1b[38;5;196msleep\n\x1b[0m");
}

TEST(AnsiWriter, writesTheTextAsItIsApartFromTheColours) {
    HandMadeText made;
    made.word("mer", NOUN, true).space("\u00A0\t").word("été", NOUN).lineBreak("\r\n").mark("…");
    EXPECT_EQ(withoutColours(written(made)), made.text);
}

TEST(AnsiWriter, letsNoTextSteerTheTerminal) {
    HandMadeText made;
    made.add("\x1b", {.kind = linguistics::TokenKind::symbol, .pos = SYM}).word("[31m", X);
    made.add("\x7f\xC2\x9B", {.kind = linguistics::TokenKind::symbol, .pos = SYM});
    EXPECT_EQ(withoutColours(written(made)), "␛[31m␡\uFFFD");
}

TEST(AnsiWriter, leavesAnEmptyTextEmpty) {
    EXPECT_EQ(written({}), "");
}

TEST(AnsiKey, namesTheNineClassesInTheirColours) {
    EXPECT_EQ(withoutColours(ansiKey()), "■ particle  ■ verb  ■ noun  ■ adjective  ■ adverb  ■ pronoun  "
                                         "■ determiner  ■ preposition  ■ conjunction\n");
    EXPECT_NE(ansiKey().find("\x1b[38;5;33m■ noun"), std::string::npos);
}

} // namespace
} // namespace lexiform::cli
