#include "tools/lexiform-cli/TsvWriter.h"

#include "tests/tools/lexiform-cli/HandMadeText.h"

#include <gtest/gtest.h>

namespace lexiform::cli {
namespace {

using enum linguistics::UniversalPos;

TEST(TsvWriter, writesAHeadingAndOneTokenALineWithoutWhiteSpace) {
    HandMadeText made;
    made.word("Été", NOUN, true).space(" ").word("gone", VERB).word("Oh", INTJ, true);
    TsvWriter writer;
    Piece piece;
    writer.paragraph(made.paragraph, {made.text}, piece);
    std::string out = TsvFormat().start();
    piece.appendTo(out, 0);
    EXPECT_EQ(out, "sentence\tform\tlemma\tupos\ttag\tscript\tlanguage\tstart\tlength\n"
                   "1\tÉté\t\tNOUN\tNoun\tLatn\ten\t0\t5\n"
                   "1\tgone\t\tVERB\tVerb\tLatn\ten\t6\t4\n"
                   "2\tOh\t\tINTJ\tInterjection\tLatn\ten\t10\t2\n");
}

} // namespace
} // namespace lexiform::cli
