#include "tools/train/sources/languages/RussianCompounds.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

GoldToken hyphen() {
    return word("-", PUNCT, "-");
}

Corpus prepared(std::initializer_list<GoldToken> tokens) {
    Corpus corpus = {sentence(tokens)};
    russianCompounds()(corpus);
    return corpus;
}

TEST(RussianCompounds, joinCommonWordsAndKeepTheLastPartsTag) {
    const Corpus corpus = prepared({word("красно", ADV, "красно"), hyphen(), word("белого", ADJ, "белый")});
    EXPECT_EQ(formsOf(corpus[0]), "красно-белого");
    EXPECT_EQ(tagsOf(corpus[0]), "ADJ");
    EXPECT_EQ(corpus[0].tokens[0].lemma, "красно-белый");
}

TEST(RussianCompounds, keepTheFirstPartsTagBeforeAParticle) {
    const Corpus corpus = prepared({word("кого", PRON, "кто"), hyphen(), word("то", ADV, "то")});
    EXPECT_EQ(tagsOf(corpus[0]), "PRON");
    EXPECT_EQ(corpus[0].tokens[0].lemma, "кто-то");
}

TEST(RussianCompounds, joinNumbersWithTheirEndings) {
    const Corpus corpus = prepared({word("1980", ADV, "1980"), hyphen(), word("х", ADJ, "й")});
    EXPECT_EQ(formsOf(corpus[0]), "1980-х");
    EXPECT_EQ(corpus[0].tokens[0].lemma, "1980-й");
}

TEST(RussianCompounds, joinAdjectivesInCapitals) {
    const Corpus corpus =
        prepared({word("Восточно", ADV, "восточно"), hyphen(), word("Сибирского", ADJ, "сибирский")});
    EXPECT_EQ(formsOf(corpus[0]), "Восточно-Сибирского");
}

TEST(RussianCompounds, keepThePartsOfNamesApartWithoutSpaces) {
    const Corpus corpus =
        prepared({word("Лейк", PROPN, "Лейк"), hyphen(), word("Тахо", PROPN, "Тахо"), word(".", PUNCT, ".")});
    EXPECT_EQ(formsOf(corpus[0]), "Лейк - Тахо .");
    EXPECT_FALSE(corpus[0].tokens[0].spaceAfter);
    EXPECT_FALSE(corpus[0].tokens[1].spaceAfter);
    EXPECT_TRUE(corpus[0].tokens[2].spaceAfter);
}

TEST(RussianCompounds, leaveAHyphenAtEitherEndOfASentence) {
    const Corpus corpus = prepared({hyphen(), word("да", PART, "да"), hyphen()});
    EXPECT_EQ(formsOf(corpus[0]), "- да -");
}

} // namespace
} // namespace lexiform::train
