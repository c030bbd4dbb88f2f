#include "linguistics/segmentation/ParagraphSplitter.h"
#include "tests/linguistics/AnalysedText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include <unicode/utf.h>
#include <unicode/utf8.h>

namespace lexiform::linguistics {
namespace {

class AnyText : public testing::TestWithParam<std::string> {};

TEST_P(AnyText, isCoveredByItsTokensWithoutGapsOrOverlaps) {
    EXPECT_EQ(breachIn(analysed(GetParam())), "");
}

INSTANTIATE_TEST_SUITE_P(
    Contract, AnyText,
    testing::Values(
        std::string(), std::string(" "), std::string("\n"), std::string("\r\n\r\n\n \n"),
        std::string(1, '\0'), std::string("a\0b", 3), std::string("\xFF\xFE\xFD"),
        std::string("\xED\xA0\x80 lone surrogate"), std::string("\xC0\xAF overlong"),
        std::string("cut \xE2\x82"), std::string("\x80\x80\x80"),
        std::string("\xEF\xBF\xBF\xF4\x8F\xBF\xBF noncharacters"), std::string("\xF4\x90\x80\x80 too high"),
        std::string("\xEF\xBB\xBFmark first"), std::string("\xCC\x81 mark without a base"),
        std::string("Ветер гонит тучи. Скоро дождь!"), std::string("今日は雨です。傘を持って行きます。"),
        std::string("แมวนอนอยู่บนเก้าอี้"), std::string("한국어 문장도 나눈다."), std::string("יש לי כלב; ולך?"),
        std::string("عندي كتاب، وعندك قلم."), std::string("Η γάτα κοιμάται."), std::string("एक, दो, तीन।"),
        std::string("mixed Текст 文字 ข้อความ نص"), std::string("\xE2\x80\x8Bzero\xE2\x80\x8Bwidth"),
        std::string("e\xCC\x81\xCC\x82\xCC\x83 a'\xCC\x81t Mr.\xCC\x81 x@y.org\xCC\x81"),
        std::string("http://\xCC\x81 #\xCC\x81 :)\xCC\x81 ...\xCC\x81 --\xCC\x81>")));

std::string randomBytes(std::mt19937& random, std::size_t length) {
    std::string bytes;
    for (std::size_t i = 0; i < length; ++i)
        bytes += static_cast<char>(random() % 256);
    return bytes;
}

TEST(Contract, holdsOnRandomBytes) {
    std::mt19937 random(7);
    for (int i = 0; i < 300; ++i)
        ASSERT_EQ(breachIn(analysed(randomBytes(random, random() % 200))), "");
}

TEST(Contract, holdsOnRandomCharactersOfAllPlanes) {
    std::mt19937 random(11);
    for (int i = 0; i < 300; ++i) {
        std::string text;
        for (int j = 0; j < 60; ++j) {
            const auto value = static_cast<UChar32>(random() % (random() % 2 ? 0x3000 : 0x110000));
            if (U_IS_SURROGATE(value)) continue;
            char bytes[4];
            std::int32_t length = 0;
            U8_APPEND_UNSAFE(bytes, length, value);
            text.append(bytes, static_cast<std::size_t>(length));
        }
        ASSERT_EQ(breachIn(analysed(text)), "");
    }
}

TEST(Contract, holdsWhereAVeryLongLineIsCut) {
    for (const std::string& piece :
         {std::string("word "), std::string("a"), std::string("é"), std::string("字"), std::string("."),
          std::string("a."), std::string("\xCC\x81"), std::string("a@"), std::string("http://)"),
          std::string("\xF0\x9F\x91\xA9\xE2\x80\x8D")}) {
        std::string text;
        while (text.size() < 1 << 20)
            text += piece;
        const AnalysedText result = analysed(text);
        ASSERT_EQ(breachIn(result), "") << piece;
        for (const Paragraph& paragraph : result.paragraphs)
            ASSERT_LE(paragraph.range.length, longestParagraph) << piece;
    }
}

TEST(Contract, letsTheVisitorStop) {
    const Engine engine(std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{}));
    int calls = 0;
    engine.analyse("One.\n\nTwo.\n\nThree.", [&](const Paragraph&) { return ++calls < 2; });
    EXPECT_EQ(calls, 2);
}

TEST(Contract, tellsTheSameAtEachDepthAsFarAsItGoes) {
    const Engine engine(
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR}));
    const std::string text = "Ms. Okafor counted 12 boats. “Où sont les autres bateaux du port ?” she asked.";
    const AnalysedText whole = analysed(text);
    const std::vector<Token> all = whole.tokens();
    for (const Depth depth : {Depth::languages, Depth::classes, Depth::lemmas})
        engine.analyse(text, engine.contextOf(text), depth, [&](const Paragraph& paragraph) {
            EXPECT_EQ(paragraph.tokens.size(), all.size());
            for (std::size_t i = 0; i < all.size(); ++i) {
                const Token& token = paragraph.tokens.at(i);
                EXPECT_EQ(token.range, all[i].range);
                EXPECT_EQ(token.startsSentence, all[i].startsSentence);
                EXPECT_EQ(token.script, all[i].script);
                EXPECT_EQ(token.language, all[i].language);
                EXPECT_EQ(token.lemma.has_value(), depth == Depth::lemmas && all[i].lemma.has_value());
                if (depth == Depth::languages) continue;
                EXPECT_EQ(token.pos, all[i].pos);
                EXPECT_EQ(token.name, all[i].name);
            }
            return true;
        });
}

TEST(Contract, tellsOfClassesWhatCharactersTellWhereNoneAreWanted) {
    const Engine engine(
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR}));
    std::vector<UniversalPos> classes;
    engine.analyse("Paris, 1900", {}, Depth::languages, [&](const Paragraph& paragraph) {
        for (const Token& token : paragraph.tokens)
            if (!isGap(token)) classes.push_back(token.pos);
        return true;
    });
    EXPECT_EQ(classes, (std::vector{UniversalPos::X, UniversalPos::PUNCT, UniversalPos::NUM}));
}

TEST(Contract, givesEachParagraphTheSameTokensAlone) {
    const std::string first = "The river rose all night. Nobody in Harlow slept.\n\n";
    const std::string second = "In the morning Ms. Okafor counted the boats; two were gone.";
    const AnalysedText together = analysed(first + second);
    const AnalysedText alone = analysed(second);
    ASSERT_EQ(together.paragraphs.size(), 2U);
    const auto& tokens = together.paragraphs[1].tokens;
    ASSERT_EQ(tokens.size(), alone.tokens().size());
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const Token other = alone.tokens()[i];
        EXPECT_EQ(tokens[i].range.start, other.range.start + first.size());
        EXPECT_EQ(tokens[i].pos, other.pos);
        EXPECT_EQ(tokens[i].name, other.name);
        EXPECT_EQ(tokens[i].script, other.script);
        EXPECT_EQ(tokens[i].language, other.language);
    }
}

} // namespace
} // namespace lexiform::linguistics
