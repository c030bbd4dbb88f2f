#include "platform/linguistics/LexicalTags.h"

#include "analysis/tagger/LexicalTag.h"
#include "platform/linguistics/PunctuationTags.h"

namespace lexiform {

namespace {

using linguistics::NameType;
using linguistics::Token;
using linguistics::TokenKind;
using linguistics::UniversalPos;

std::string_view nameTag(NameType name) {
    switch (name) {
    case NameType::person:
        return NLTagPersonalName;
    case NameType::place:
        return NLTagPlaceName;
    default:
        return NLTagOrganizationName;
    }
}

std::string_view classTag(UniversalPos pos) {
    using enum UniversalPos;
    switch (pos) {
    case VERB:
    case AUX:
        return NLTagVerb;
    case NOUN:
    case PROPN:
        return NLTagNoun;
    case ADJ:
        return NLTagAdjective;
    case ADV:
        return NLTagAdverb;
    case PRON:
        return NLTagPronoun;
    case DET:
        return NLTagDeterminer;
    case PART:
        return NLTagParticle;
    case NUM:
        return NLTagNumber;
    case ADP:
        return NLTagPreposition;
    case CCONJ:
    case SCONJ:
        return NLTagConjunction;
    case INTJ:
        return NLTagInterjection;
    default:
        return NLTagOtherWord;
    }
}

} // namespace

std::string_view nameTypeOrLexicalClass(const Token& token, std::string_view text) {
    if (token.kind == TokenKind::whitespace) return NLTagOtherWhitespace;
    if (token.kind == TokenKind::lineBreak) return NLTagParagraphBreak;
    if (token.name != NameType::none) return nameTag(token.name);
    if (token.isClassifier) return NLTagClassifier;
    if (token.pos == UniversalPos::PUNCT) return punctuationTag(token.range, text);
    return classTag(token.pos);
}

} // namespace lexiform
