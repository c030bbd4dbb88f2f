#include "tools/lexiform-cli/AnsiWriter.h"

#include "tests/tools/lexiform-cli/HandMadeText.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform::cli {
namespace {

using enum linguistics::UniversalPos;

std::string written(const HandMadeText& made) {
    AnsiWriter writer;
    Piece piece;
    writer.paragraph(made.paragraph, {made.text}, piece);
    writer.endBlock(piece);
    return piece.text;
}

std::string withoutColours(std::string out) {
    for (std::size_t start = 0; (start = out.find('\x1b', start)) != std::string::npos;)
        out.erase(start, out.find('m', start) + 1 - start);
    return out;
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

TEST(AnsiWriter, letsNoTextOverwriteALineOrTurnItsDirection) {
    HandMadeText made;
    made.word("hidden", NOUN, true).lineBreak("\r").word("shown", VERB).lineBreak("\r\n");
    made.add("\u202E\u2066", {.kind = linguistics::TokenKind::symbol, .pos = SYM}).word("\u202F\u2026", X);
    EXPECT_EQ(withoutColours(written(made)), "hidden\nshown\r\n\uFFFD\uFFFD\u202F\u2026");
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
