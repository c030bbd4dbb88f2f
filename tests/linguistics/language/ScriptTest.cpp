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

TEST(Scripts, ofEastAsianTextsAreThoseOfEachToken) {
    const std::string text = "漢字 かな カナ 한글 ㄅㄆㄇ";
    EXPECT_EQ(scriptOf(text, "漢字"), "Hani");
    EXPECT_EQ(scriptOf(text, "かな"), "Hira");
    EXPECT_EQ(scriptOf(text, "カナ"), "Kana");
    EXPECT_EQ(scriptOf(text, "한글"), "Hang");
    EXPECT_EQ(scriptOf(text, "ㄅㄆㄇ"), "Bopo");
}

TEST(Scripts, ofRarerAlphabetsAreTold) {
    const std::string text = "ქართული հայերեն ไทย ᏣᎳᎩ 𐌲𐌿𐍄 አማርኛ";
    EXPECT_EQ(scriptOf(text, "ქართული"), "Geor");
    EXPECT_EQ(scriptOf(text, "հայերեն"), "Armn");
    EXPECT_EQ(scriptOf(text, "ไทย"), "Thai");
    EXPECT_EQ(scriptOf(text, "ᏣᎳᎩ"), "Cher");
    EXPECT_EQ(scriptOf(text, "𐌲𐌿𐍄"), "Goth");
    EXPECT_EQ(scriptOf(text, "አማርኛ"), "Ethi");
}

TEST(Scripts, ofEmojiAreThoseAroundThem) {
    EXPECT_EQ(scriptOf("слово 😀 word", "😀"), "Cyrl");
    EXPECT_EQ(scriptOf("👩🏽‍🚀 word", "👩🏽‍🚀"), "Latn");
}

TEST(Scripts, ofMixedWordsAreThoseOfTheirFirstLetter) {
    EXPECT_EQ(scriptOf("Latыnь Яndex", "Latыnь"), "Latn");
    EXPECT_EQ(scriptOf("Latыnь Яndex", "Яndex"), "Cyrl");
}

TEST(Scripts, ofLettersWithCombiningMarksAreThoseOfTheLetters) {
    EXPECT_EQ(scriptOf("е\xCC\x81ль", "е\xCC\x81ль"), "Cyrl");
    EXPECT_EQ(scriptOf("e\xCC\x81te\xCC\x81", "e\xCC\x81te\xCC\x81"), "Latn");
}

TEST(Scripts, ofTheLongVowelMarkAndWideDigitsAreThoseAround) {
    EXPECT_EQ(scriptOf("カタカナ １２", "１２"), "Kana");
    EXPECT_EQ(scriptOf("한글 ー", "ー"), "Hang");
}

TEST(Scripts, ofDigitsAtTheStartAreThoseAfterEvenAcrossManyTokens) {
    const std::string text = "12. (34) – 56% שלום";
    for (const char* token : {"12", "(", "34", "–", "%"})
        EXPECT_EQ(scriptOf(text, token), "Hebr") << token;
}

TEST(Scripts, ofStrayBytesAreThoseAround) {
    EXPECT_EQ(scriptOf("слово \xFF word", "\xFF"), "Cyrl");
}

} // namespace
} // namespace lexiform::linguistics
