#include "tools/lexiform-cli/Piece.h"

#include <gtest/gtest.h>

namespace lexiform::cli {
namespace {

TEST(Piece, putsInTheNumbersOfItsSentencesAtLast) {
    Piece piece;
    piece.text = "<";
    piece.startSentence();
    piece.appendSentenceNumber();
    piece.text += "><";
    piece.startSentence();
    piece.appendSentenceNumber();
    piece.text += ",";
    piece.appendSentenceNumber();
    piece.text += ">";
    std::string out = "= ";
    piece.appendTo(out, 8);
    EXPECT_EQ(out, "= <9><10,10>");
    EXPECT_EQ(piece.sentences(), 2U);
}

TEST(Piece, isItsTextWhereNothingIsNumbered) {
    Piece piece;
    piece.text = "as it is";
    std::string out;
    piece.appendTo(out, 5);
    EXPECT_EQ(out, "as it is");
}

} // namespace
} // namespace lexiform::cli
