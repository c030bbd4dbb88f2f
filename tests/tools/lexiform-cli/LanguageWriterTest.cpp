#include "tools/lexiform-cli/LanguageWriter.h"

#include "tests/tools/lexiform-cli/HandMadeText.h"

#include <gtest/gtest.h>

namespace lexiform::cli {
namespace {

using enum linguistics::UniversalPos;

std::string linesOf(const HandMadeText& made, bool bySentence) {
    LanguageWriter writer(bySentence);
    Piece piece;
    writer.paragraph(made.paragraph, {made.text}, piece);
    writer.endBlock(piece);
    return piece.text;
}

HandMadeText twoSentences() {
    HandMadeText made;
    made.word("He", PRON, true).space(" ").word("said", VERB).mark(":").lineBreak("\r\n").space("\t");
    made.add("oui", {.startsSentence = true, .language = "fr"}).mark("!").lineBreak("\n");
    return made;
}

TEST(LanguageWriter, writesTheLanguageOfMostOfAParagraphAndItsTextOnOneLine) {
    EXPECT_EQ(linesOf(twoSentences(), false), "en\tHe said: oui!\n");
}

TEST(LanguageWriter, writesALineForEachSentenceWhenAsked) {
    EXPECT_EQ(linesOf(twoSentences(), true), "en\tHe said:\nfr\toui!\n");
}

TEST(LanguageWriter, saysThatALanguageCannotBeTold) {
    HandMadeText made;
    made.add("42", {.startsSentence = true});
    EXPECT_EQ(linesOf(made, false), "und\t42\n");
}

TEST(LanguageWriter, writesNothingForWhiteSpace) {
    HandMadeText made;
    made.space("  ").lineBreak("\n");
    EXPECT_EQ(linesOf(made, true), "");
}

} // namespace
} // namespace lexiform::cli
