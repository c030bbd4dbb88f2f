#include "platform/linguistics/TokenUnits.h"

#include "platform/linguistics/LexicalTags.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace lexiform {
namespace {

using linguistics::NameType;
using linguistics::Paragraph;
using linguistics::Token;
using linguistics::TokenKind;
using enum linguistics::UniversalPos;

const std::string text = "Ada Penrose sat.  She left.\n";

/// The paragraph of `text`, analysed by hand.
Paragraph paragraph() {
    const auto blank = [](std::size_t start, std::size_t length) {
        return Token{.range = {start, length}, .kind = TokenKind::whitespace};
    };
    return {{0, text.size()},
            {{.range = {0, 3},
              .pos = PROPN,
              .name = NameType::person,
              .startsName = true,
              .startsSentence = true},
             blank(3, 1),
             {.range = {4, 7}, .pos = PROPN, .name = NameType::person},
             blank(11, 1),
             {.range = {12, 3}, .pos = VERB},
             {.range = {15, 1}, .kind = TokenKind::punctuation, .pos = PUNCT},
             blank(16, 2),
             {.range = {18, 3}, .pos = PRON, .startsSentence = true},
             blank(21, 1),
             {.range = {22, 4}, .pos = VERB},
             {.range = {26, 1}, .kind = TokenKind::punctuation, .pos = PUNCT},
             {.range = {27, 1}, .kind = TokenKind::lineBreak}}};
}

std::optional<std::string_view> lexical(const Token& token, std::string_view of) {
    return nameTypeOrLexicalClass(token, of);
}

std::vector<std::string> piecesOf(const std::vector<TaggedUnit>& units) {
    std::vector<std::string> pieces;
    for (const TaggedUnit& unit : units)
        pieces.emplace_back(substring(text, unit.range));
    return pieces;
}

std::vector<std::string> wordsWith(NLTaggerOptions options) {
    return piecesOf(wordsOf(paragraph(), text, lexical, options));
}

using Pieces = std::vector<std::string>;

TEST(WordUnits, coverTheParagraphWithoutOptions) {
    std::string joined;
    for (const std::string& piece : wordsWith(NLTaggerOptions()))
        joined += piece;
    EXPECT_EQ(joined, text);
}

TEST(WordUnits, leaveOutWhatTheOptionsName) {
    using enum NLTaggerOption;
    EXPECT_EQ(wordsWith({omitWhitespace, omitPunctuation}), (Pieces{"Ada", "Penrose", "sat", "She", "left"}));
    EXPECT_EQ(wordsWith({omitWords, omitWhitespace}), (Pieces{".", "."}));
}

TEST(WordUnits, leaveOutWordsOfNoClassWhenAsked) {
    const Paragraph odd{{0, 3}, {{.range = {0, 3}, .pos = X, .startsSentence = true}}};
    EXPECT_TRUE(wordsOf(odd, "qzx", lexical, {NLTaggerOption::omitOther}).empty());
    EXPECT_EQ(wordsOf(odd, "qzx", lexical, {NLTaggerOption::omitWords}).size(), 1U);
}

TEST(WordUnits, joinTheWordsOfANameWhenAsked) {
    using enum NLTaggerOption;
    EXPECT_EQ(wordsWith({joinNames, omitWhitespace}),
              (Pieces{"Ada Penrose", "sat", ".", "She", "left", "."}));
    EXPECT_EQ(wordsOf(paragraph(), text, lexical, {joinNames}).front().tag, "PersonalName");
}

TEST(WordUnits, keepTwoNamesThatFollowEachOtherApart) {
    const Paragraph names{{0, 7},
                          {{.range = {0, 3}, .name = NameType::person, .startsName = true},
                           {.range = {3, 1}, .kind = TokenKind::whitespace},
                           {.range = {4, 3}, .name = NameType::person, .startsName = true}}};
    EXPECT_EQ(wordsOf(names, "Ada Bob", lexical, {NLTaggerOption::joinNames}).size(), 3U);
}

TEST(SentenceUnits, coverTheParagraphWithTheTagOfTheirFirstWord) {
    const std::vector<TaggedUnit> sentences = sentencesOf(paragraph(), text, lexical);
    EXPECT_EQ(piecesOf(sentences), (Pieces{"Ada Penrose sat.  ", "She left.\n"}));
    EXPECT_EQ(sentences[0].tag, "PersonalName");
    EXPECT_EQ(sentences[1].tag, "Pronoun");
}

TEST(SentenceUnits, takeInTheWhiteSpaceBeforeTheFirst) {
    const Paragraph indented{{0, 4},
                             {{.range = {0, 2}, .kind = TokenKind::whitespace},
                              {.range = {2, 2}, .pos = INTJ, .startsSentence = true}}};
    const std::vector<TaggedUnit> sentences = sentencesOf(indented, "  Oh", lexical);
    ASSERT_EQ(sentences.size(), 1U);
    EXPECT_EQ(sentences[0].range, (TextRange{0, 4}));
    EXPECT_EQ(sentences[0].tag, "Interjection");
}

TEST(SentenceUnits, coverAParagraphOfNothingButWhiteSpace) {
    const Paragraph blank{{0, 2}, {{.range = {0, 2}, .kind = TokenKind::whitespace, .startsSentence = true}}};
    const std::vector<TaggedUnit> sentences = sentencesOf(blank, "  ", lexical);
    ASSERT_EQ(sentences.size(), 1U);
    EXPECT_EQ(sentences[0].range, (TextRange{0, 2}));
    EXPECT_EQ(sentences[0].tag, std::nullopt);
}

TEST(ParagraphUnit, isTheWholeParagraph) {
    const TaggedUnit whole = wholeOf(paragraph(), text, lexical);
    EXPECT_EQ(whole.range, (TextRange{0, text.size()}));
    EXPECT_EQ(whole.tag, "PersonalName");
}

} // namespace
} // namespace lexiform
