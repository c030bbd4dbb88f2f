#include "platform/linguistics/LexicalTags.h"

#include "analysis/tagger/LexicalTag.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace lexiform {
namespace {

using linguistics::NameType;
using linguistics::Token;
using linguistics::TokenKind;
using enum linguistics::UniversalPos;

std::string_view tagOf(Token token) {
    token.range = {0, 1};
    return nameTypeOrLexicalClass(token, "x");
}

TEST(LexicalTags, namesTheClassOfEveryPartOfSpeech) {
    const std::vector<std::pair<linguistics::UniversalPos, std::string_view>> classes = {
        {VERB, NLTagVerb},         {AUX, NLTagVerb},          {NOUN, NLTagNoun},
        {PROPN, NLTagNoun},        {ADJ, NLTagAdjective},     {ADV, NLTagAdverb},
        {PRON, NLTagPronoun},      {DET, NLTagDeterminer},    {PART, NLTagParticle},
        {NUM, NLTagNumber},        {ADP, NLTagPreposition},   {CCONJ, NLTagConjunction},
        {SCONJ, NLTagConjunction}, {INTJ, NLTagInterjection}, {SYM, NLTagOtherWord},
        {X, NLTagOtherWord}};
    for (const auto& [pos, tag] : classes)
        EXPECT_EQ(tagOf({.pos = pos}), tag) << nameOf(pos);
}

TEST(LexicalTags, putsTheTypeOfANameBeforeItsClass) {
    EXPECT_EQ(tagOf({.pos = PROPN, .name = NameType::person}), NLTagPersonalName);
    EXPECT_EQ(tagOf({.pos = PROPN, .name = NameType::place}), NLTagPlaceName);
    EXPECT_EQ(tagOf({.pos = ADP, .name = NameType::organization}), NLTagOrganizationName);
}

TEST(LexicalTags, namesTheKindOfPunctuationByItsCharacter) {
    const Token stop{.range = {3, 1}, .kind = TokenKind::punctuation, .pos = PUNCT};
    EXPECT_EQ(nameTypeOrLexicalClass(stop, "end."), NLTagSentenceTerminator);
}

TEST(LexicalTags, tellsWhiteSpaceInALineFromItsEnd) {
    EXPECT_EQ(tagOf({.kind = TokenKind::whitespace}), NLTagOtherWhitespace);
    EXPECT_EQ(tagOf({.kind = TokenKind::lineBreak}), NLTagParagraphBreak);
}

} // namespace
} // namespace lexiform
