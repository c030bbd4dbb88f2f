#include "base/Unicode.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform {
namespace {

TEST(LowerCasing, mapsAsciiLettersAlone) {
    EXPECT_EQ(lowerCased("The CAT's 9 Lives"), "the cat's 9 lives");
}

TEST(LowerCasing, mapsEveryCasedScript) {
    EXPECT_EQ(lowerCased("ÄRGER"), "ärger");
    EXPECT_EQ(lowerCased("МОРЕ"), "море");
    EXPECT_EQ(lowerCased("ΘΆΛΑΣΣΑ"), "θάλασσα");
}

TEST(LowerCasing, isTheSameInEveryLanguage) {
    EXPECT_EQ(lowerCased("ISTANBUL"), "istanbul");
    EXPECT_EQ(lowerCased("İ"), "i\u0307"); // a dotted capital I keeps its dot as a mark
}

TEST(LowerCasing, putsTheFinalFormOfSigmaAtTheEndOfAWord) {
    EXPECT_EQ(lowerCased("ΛΌΓΟΣ"), "λόγος");
}

TEST(LowerCasing, leavesUncasedTextAsItIs) {
    EXPECT_EQ(lowerCased("海のそば 🌊"), "海のそば 🌊");
}

TEST(Utf8Check, findsNothingInWellFormedText) {
    EXPECT_EQ(firstInvalidUtf8(""), std::nullopt);
    EXPECT_EQ(firstInvalidUtf8("plain, naïve, 海, 🌊"), std::nullopt);
    EXPECT_EQ(firstInvalidUtf8(std::string_view("a\0b", 3)), std::nullopt);
    EXPECT_EQ(firstInvalidUtf8("\uFFFF\U0010FFFF"), std::nullopt); // noncharacters are well formed
}

TEST(Utf8Check, findsTheOffsetOfTheFirstStrayByte) {
    EXPECT_EQ(firstInvalidUtf8("abc\xFFxyz"), 3U);
    EXPECT_EQ(firstInvalidUtf8("\x80"), 0U);
}

TEST(Utf8Check, refusesATruncatedSequence) {
    EXPECT_EQ(firstInvalidUtf8("ab\xE6\xB5"), 2U);
    EXPECT_EQ(firstInvalidUtf8("\xF0\x9F\x8C"), 0U);
}

TEST(Utf8Check, refusesOverlongFormsSurrogatesAndValuesPastTheLast) {
    EXPECT_EQ(firstInvalidUtf8("\xC0\xAF"), 0U);
    EXPECT_EQ(firstInvalidUtf8("\xE0\x80\xAF"), 0U);
    EXPECT_EQ(firstInvalidUtf8("x\xED\xA0\x80"), 1U);
    EXPECT_EQ(firstInvalidUtf8("\xF4\x90\x80\x80"), 0U);
}

TEST(Composition, makesCanonicallyEquivalentTextsTheSame) {
    EXPECT_EQ(composed("plain"), "plain");
    EXPECT_EQ(composed("cafe\u0301"), "caf\u00E9");
    EXPECT_EQ(composed("\u212B"), "\u00C5");
    EXPECT_EQ(composed("q\u0307\u0323"), "q\u0323\u0307");
}

TEST(Composition, tellsWhatIsComposedAlready) {
    EXPECT_TRUE(isComposed("plain"));
    EXPECT_TRUE(isComposed("caf\u00E9"));
    EXPECT_FALSE(isComposed("cafe\u0301"));
}

TEST(Composition, tellsCanonicallyEquivalentTextsFromOthers) {
    EXPECT_TRUE(canonicallyEqual("caf\u00E9", "cafe\u0301"));
    EXPECT_FALSE(canonicallyEqual("cafe", "caf\u00E9"));
}

TEST(FirstCharacters, areCountedAsAPersonCountsThem) {
    EXPECT_EQ(firstCharacters("PersonalName", 5), "Perso");
    EXPECT_EQ(firstCharacters("Latn", 5), "Latn");
    EXPECT_EQ(firstCharacters("", 5), "");
    EXPECT_EQ(firstCharacters("e\u0301a", 1), "e\u0301");
    EXPECT_EQ(firstCharacters("👩‍👩‍👧🇩🇪!", 2), "👩‍👩‍👧🇩🇪");
}

} // namespace
} // namespace lexiform
