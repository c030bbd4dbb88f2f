#include "linguistics/Engine.h"
#include "tests/linguistics/AnalysedText.h"

#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

TEST(Language, isToldOfEachParagraph) {
    const AnalysedText text = analysed("The boats were gone when they came back from the market.\n\n"
                                       "Die Boote waren fort, als sie vom Markt zurückkamen.\n\n"
                                       "Лодки исчезли, когда они вернулись с рынка.\n");
    EXPECT_EQ(text.token("boats").language, "en");
    EXPECT_EQ(text.token("Boote").language, "de");
    EXPECT_EQ(text.token("Лодки").language, "ru");
}

TEST(Language, isToldOfASentenceThatIsLongEnough) {
    const AnalysedText text =
        analysed("We had waited at the harbour since the morning. "
                 "Il n'y avait plus aucun bateau dans le vieux port. Nobody spoke to us.");
    EXPECT_EQ(text.token("harbour").language, "en");
    EXPECT_EQ(text.token("bateau").language, "fr");
    EXPECT_EQ(text.token("spoke").language, "en");
}

TEST(Language, isToldOfAShortSentenceInAScriptOfItsOwn) {
    const AnalysedText text = analysed("We live here. 서울은 한국의 수도이다. We went home.");
    EXPECT_EQ(text.token("live").language, "en");
    EXPECT_EQ(text.token("live").pos, UniversalPos::VERB);
    EXPECT_EQ(text.token("수도이다").language, "ko");
    EXPECT_EQ(text.token("수도이다").pos, UniversalPos::VERB);
}

TEST(Language, isToldOfAQuotationWithinASentence) {
    const AnalysedText text =
        analysed("The old captain shook his head at the question that we had asked him and answered "
                 "“Ich habe seit dem Winter kein Schiff mehr gesehen” before he closed the heavy door.");
    EXPECT_EQ(text.token("captain").language, "en");
    EXPECT_EQ(text.token("Winter").language, "de");
    EXPECT_EQ(text.token("heavy").language, "en");
}

TEST(Language, ofAQuotationInTheWordsOfItsParagraphIsTheParagraphs) {
    const AnalysedText text = analysed(
        "Nobody in the village had seen them. “We have not seen the ships of the king since the winter,” "
        "said the captain. He closed the heavy door.");
    EXPECT_EQ(text.token("ships").language, "en");
    EXPECT_EQ(text.token("captain").language, "en");
}

TEST(Language, ofASentenceAroundAForeignQuotationIsItsOwn) {
    const AnalysedText text = analysed("We had waited at the harbour since the morning. Then he said to us, "
                                       "“Il n'y avait plus aucun bateau dans le vieux port”, and was gone.");
    EXPECT_EQ(text.token("said").language, "en");
    EXPECT_EQ(text.token("bateau").language, "fr");
    EXPECT_EQ(text.token("gone").language, "en");
}

TEST(Language, ofANameInAnotherScriptIsThatOfTheSentence) {
    const AnalysedText text =
        analysed("Вечером они слушали новый альбом группы Old Harbour Stories и пили чай.");
    EXPECT_EQ(text.token("альбом").language, "ru");
    EXPECT_EQ(text.token("Harbour").language, "ru");
    EXPECT_EQ(text.token("Harbour").script, "Latn");
    EXPECT_EQ(text.token("чай").language, "ru");
}

TEST(Language, ofASentenceWithALongForeignTitleIsThatOfItsScript) {
    const AnalysedText text =
        analysed("Музыканты долго жили в маленьком доме у моря. Осенью группа выпустила второй альбом "
                 "Lanterns on the Water at the End of the Year и песню The Ferryman. Потом они уехали.");
    EXPECT_EQ(text.token("группа").language, "ru");
    EXPECT_EQ(text.token("выпустила").pos, UniversalPos::VERB);
    EXPECT_EQ(text.token("Lanterns").language, "en");
    EXPECT_EQ(text.token("песню").language, "ru");
    EXPECT_EQ(text.token("Ferryman").language, "ru");
}

TEST(Language, ofAWordInAScriptThatOnlyOneLanguageHasIsToldByIt) {
    const AnalysedText text = analysed("The capital of the country is Seoul or 서울, which lies on a river.");
    EXPECT_EQ(text.token("서울").language, "ko");
    EXPECT_EQ(text.token("river").language, "en");
}

TEST(Language, ofAShortParagraphIsThatOfTheText) {
    const AnalysedText text =
        analysed("Kapitel 2\n\nDie Boote waren fort, als sie am Abend vom Markt in das Dorf zurückkamen, und "
                 "niemand wusste, wer sie genommen hatte.\n");
    EXPECT_EQ(text.token("Kapitel").language, "de");
}

TEST(Language, isNotToldWhereThereAreNoWords) {
    EXPECT_EQ(analysed("12 + 30 = 42").token("42").language, "");
    EXPECT_EQ(analysed("?!").token("?!").language, "");
}

TEST(Language, isTheOneThatIsForced) {
    const auto models =
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR});
    const Engine engine(models, {.language = "DE-at"});
    engine.analyse("Chapter 2: The boats were gone.", [](const Paragraph& paragraph) {
        for (const Token& token : paragraph.tokens)
            EXPECT_EQ(token.language, "de");
        return true;
    });
}

TEST(Language, ofAPartOfATextFollowsItsContext) {
    const auto models =
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR});
    const Engine engine(models);
    const std::string text =
        "Die Boote waren fort, als sie am Abend vom Markt in das Dorf zurückkamen.\n\nII.";
    const TextContext context = engine.contextOf(text);
    EXPECT_EQ(context.mainLanguage, "de");
    engine.analyse("Alpha", context, [](const Paragraph& paragraph) {
        EXPECT_EQ(paragraph.tokens.front().language, "de");
        return true;
    });
}

} // namespace
} // namespace lexiform::linguistics
