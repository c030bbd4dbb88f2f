#include "tests/linguistics/AnalysedText.h"

#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

std::string_view scriptOf(const std::string& text, std::string_view token) {
    return analysedPlainly(text).token(token).script;
}

TEST(Scripts, areThoseOfTheLetters) {
    const std::string text = "word слово λέξη שלום كلمة शब्द 단어 ありがとう";
    EXPECT_EQ(scriptOf(text, "word"), "Latn");
    EXPECT_EQ(scriptOf(text, "слово"), "Cyrl");
    EXPECT_EQ(scriptOf(text, "λέξη"), "Grek");
    EXPECT_EQ(scriptOf(text, "שלום"), "Hebr");
    EXPECT_EQ(scriptOf(text, "كلمة"), "Arab");
    EXPECT_EQ(scriptOf(text, "शब्द"), "Deva");
    EXPECT_EQ(scriptOf(text, "단어"), "Hang");
    EXPECT_EQ(scriptOf(text, "ありがとう"), "Hira");
}

TEST(Scripts, ofSharedCharactersAreThoseOfTheWordBefore) {
    EXPECT_EQ(scriptOf("слово, word 12", ","), "Cyrl");
    EXPECT_EQ(scriptOf("слово, word 12", "12"), "Latn");
}

TEST(Scripts, ofSharedCharactersAtTheStartAreThoseOfTheWordAfter) {
    EXPECT_EQ(scriptOf("«1» слово", "«"), "Cyrl");
}

TEST(Scripts, areEmptyWhereTheTextTellsNone) {
    EXPECT_EQ(scriptOf("12 + 30", "12"), "");
}

} // namespace
} // namespace lexiform::linguistics
