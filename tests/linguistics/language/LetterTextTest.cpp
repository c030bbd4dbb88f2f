#include "linguistics/language/LetterText.h"

#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

std::string wordsOf(std::string_view text) {
    return LetterText(text).utf8();
}

TEST(LetterText, isTheWordsInLowerCaseBetweenBlanks) {
    EXPECT_EQ(wordsOf("The Old Bridge, 1907!"), " the old bridge ");
    EXPECT_EQ(wordsOf("ÉTÉ Ёлка ÅNGSTRÖM"), " été ёлка ångström ");
}

TEST(LetterText, cutsAtApostrophesAndDigits) {
    EXPECT_EQ(wordsOf("l'eau d’or a1b"), " l eau d or a b ");
}

TEST(LetterText, leavesOutAddressesAndHandles) {
    EXPECT_EQ(wordsOf("see https://example.org/page and www.example.org now"), " see and now ");
    EXPECT_EQ(wordsOf("ask someone@example.org or @handle today"), " ask or today ");
}

TEST(LetterText, isEmptyWithoutLetters) {
    EXPECT_EQ(wordsOf("12 + 30"), "");
    EXPECT_EQ(LetterText("").letters(), 0U);
}

TEST(LetterText, composesMarksWithTheirLetters) {
    EXPECT_EQ(wordsOf("e\xCC\x81t\xC3\xA9"), " été ");
}

TEST(LetterText, ignoresSoftHyphensAndVowelPoints) {
    EXPECT_EQ(wordsOf("Schiff\xC2\xAD"
                      "fahrt"),
              " schifffahrt ");
    EXPECT_EQ(wordsOf("مُحَمَّد"), " محمد ");
}

TEST(LetterText, takesStrayBytesForGaps) {
    EXPECT_EQ(wordsOf("one\xFFtwo\xC3"), " one two ");
}

TEST(LetterText, countsLettersByWriting) {
    const LetterText text("abc где 漢字 かな 한글");
    EXPECT_EQ(text.lettersIn(Writing::latin), 3U);
    EXPECT_EQ(text.lettersIn(Writing::cyrillic), 3U);
    EXPECT_EQ(text.lettersIn(Writing::han), 2U);
    EXPECT_EQ(text.lettersIn(Writing::kana), 2U);
    EXPECT_EQ(text.lettersIn(Writing::hangul), 2U);
    EXPECT_EQ(text.letters(), 12U);
}

TEST(LetterText, takesPiecesOfALongTextAtCharacters) {
    std::string text;
    for (int i = 0; i < 2000; ++i)
        text += "ж";
    const LetterText letters(text);
    EXPECT_LE(letters.letters(), LetterText::largestSample / 2);
    EXPECT_GE(letters.letters(), LetterText::largestSample / 2 - 6);
    EXPECT_EQ(letters.lettersIn(Writing::cyrillic), letters.letters());
}

} // namespace
} // namespace lexiform::linguistics
