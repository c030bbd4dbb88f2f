#include "tests/linguistics/segmentation/CutText.h"

#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

TEST(Conventions, leaveTheContractionsOfEnglishToEnglish) {
    EXPECT_EQ(cutText("I don't know", "en"), "I|do|n't|know");
    EXPECT_EQ(cutText("I don't know", ""), "I|don't|know");
    EXPECT_EQ(cutText("zo'n cannot", "nl"), "zo'n|cannot");
}

TEST(Conventions, knowALanguageByItsFirstSubtag) {
    EXPECT_EQ(cutText("we'll", "en-GB"), "we|'ll");
    EXPECT_EQ(cutText("l'eau", "fr-CA"), "l'|eau");
}

TEST(Conventions, partElidedWordsInFrenchItalianAndCatalan) {
    EXPECT_EQ(cutText("L'eau qu'il boit aujourd'hui", "fr"), "L'|eau|qu'|il|boit|aujourd'hui");
    EXPECT_EQ(cutText("jusqu’à l’île", "fr"), "jusqu’|à|l’|île");
    EXPECT_EQ(cutText("dell'acqua e un'isola", "it"), "dell'|acqua|e|un'|isola");
    EXPECT_EQ(cutText("l'aigua d'un riu", "ca"), "l'|aigua|d'|un|riu");
    EXPECT_EQ(cutText("L'eau", ""), "L'eau");
}

TEST(Conventions, partTheInvertedPronounsOfFrench) {
    EXPECT_EQ(cutText("« Oui », dit-elle.", "fr"), "«|Oui|»|,|dit|-elle|.");
    EXPECT_EQ(cutText("Y a-t-il, fut-ce, sont-ils, ai-je ?", "fr"),
              "Y|a|-t-il|,|fut|-ce|,|sont|-ils|,|ai|-je|?");
    EXPECT_EQ(cutText("Qu'est-ce que l'a-t-on", "fr"), "Qu'|est|-ce|que|l'|a|-t-on");
    EXPECT_EQ(cutText("DIT-IL", "fr"), "DIT|-IL");
    EXPECT_EQ(cutText("dit-elle", "ca"), "dit-elle");
}

TEST(Conventions, partThePronounsOfFrenchImperatives) {
    EXPECT_EQ(cutText("Donne-le-moi ! Allez-vous-en, vas-y.", "fr"),
              "Donne|-le|-moi|! || Allez|-vous|-en|,|vas|-y|.");
    EXPECT_EQ(cutText("va-t'en, va-t-en, donnez-m’en", "fr"), "va|-t'|en|,|va|-t-en|,|donnez|-m’|en");
}

TEST(Conventions, partThePlaceOfFrenchNouns) {
    EXPECT_EQ(cutText("ce jour-là, cette fois-ci", "fr"), "ce|jour|-là|,|cette|fois|-ci");
    EXPECT_EQ(cutText("celui-ci, ceux-là, jusque-là", "fr"), "celui-ci|,|ceux-là|,|jusque-là");
}

TEST(Conventions, keepFrenchCompoundsThatLookLikeInversions) {
    for (const std::string_view word : {"rendez-vous", "peut-être", "vis-à-vis", "moi-même", "chez-moi",
                                        "as-tu-vu", "Jong-il", "Bar-le-Duc", "garde-à-vous"})
        EXPECT_EQ(cutText(word, "fr"), word);
    EXPECT_EQ(cutText("-il -", "fr"), "-|il|-");
}

TEST(Conventions, keepHyphenatedWordsButInEnglishGermanAndTurkish) {
    EXPECT_EQ(cutText("un porte-clés", "fr"), "un|porte-clés");
    EXPECT_EQ(cutText("kara-kaplı", "tr"), "kara|-|kaplı");
    EXPECT_EQ(cutText("какой-то дом", "ru"), "какой-то|дом");
    EXPECT_EQ(cutText("een e-mail-adres", "nl"), "een|e-mail-adres");
    EXPECT_EQ(cutText("Nord-Süd", "de"), "Nord|-|Süd");
}

TEST(Conventions, keepTheCaseEndingsOfTurkishAndFinnish) {
    EXPECT_EQ(cutText("Ankara'nın yolu", "tr"), "Ankara'nın|yolu");
}

TEST(Conventions, joinTheThousandsOfNumbersWhereTreebanksDo) {
    EXPECT_EQ(cutText("10 000 habitants, 1 234 567,5 euros", "fr"), "10 000|habitants|,|1 234 567,5|euros");
    EXPECT_EQ(cutText("noin 25 000 ihmistä", "fi"), "noin|25 000|ihmistä");
    EXPECT_EQ(cutText("en 1990 200 maisons, 12 34", "fr"), "en|1990|200|maisons|,|12|34");
    EXPECT_EQ(cutText("10 000 Leute", "de"), "10|000|Leute");
}

TEST(Conventions, keepTheFullStopOfOrdinals) {
    EXPECT_EQ(cutText("am 3. Mai", "de"), "am|3.|Mai");
    EXPECT_EQ(cutText("den 3. maj", "da"), "den|3.|maj");
}

TEST(Conventions, partTheParticlesOfIndonesian) {
    EXPECT_EQ(cutText("rumahnya hanya satu", "id"), "rumah|nya|hanya|satu");
    EXPECT_EQ(cutText("Apakah akhirnya menikah?", "id"), "Apa|kah|akhirnya|menikah|?");
}

TEST(Conventions, keepTheWordsOfKoreanAsTheyAreSpaced) {
    EXPECT_EQ(cutText("나는 학교에 간다.", "ko"), "나는|학교에|간다|.");
}

TEST(Conventions, keepAddressesHandlesAndEntitiesInEveryLanguage) {
    for (const std::string_view language : trainedLanguages) {
        EXPECT_EQ(cutText("https://example.org/x?y=1", language), "https://example.org/x?y=1") << language;
        EXPECT_EQ(cutText("mia@example.org", language), "mia@example.org") << language;
        EXPECT_EQ(cutText("@mia_22 #haus", language), "@mia_22|#haus") << language;
        EXPECT_EQ(cutText("&#39;&#39; 👩‍🚀 🇫🇷 1️⃣ 👍🏽", language),
                  "&#39;&#39;|👩‍🚀|🇫🇷|1️⃣|👍🏽")
            << language;
    }
}

TEST(ByteOrderMark, isNoVisibleToken) {
    const std::string text = "\xEF\xBB\xBFWords";
    EXPECT_EQ(cutText(text, "en"), "Words");
    EXPECT_EQ(tokensOf(text, "en").front().kind, TokenKind::whitespace);
}

} // namespace
} // namespace lexiform::linguistics
