#include "platform/linguistics/PunctuationTags.h"

#include "analysis/tagger/LexicalTag.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace lexiform {

namespace {

/// Stands for the start or the end of the text, and for bytes that are no character.
constexpr UChar32 noCharacter = -1;

UChar32 characterAt(std::string_view text, std::size_t at) {
    if (at >= text.size()) return noCharacter;
    const auto window = static_cast<std::int32_t>(std::min<std::size_t>(text.size() - at, 4));
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data() + at);
    std::int32_t used = 0;
    UChar32 character = noCharacter;
    U8_NEXT(bytes, used, window, character);
    return character;
}

UChar32 characterBefore(std::string_view text, std::size_t at) {
    const std::size_t window = std::min<std::size_t>(at, 4);
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data() + (at - window));
    auto used = static_cast<std::int32_t>(window);
    UChar32 character = noCharacter;
    if (used > 0) U8_PREV(bytes, 0, used, character);
    return character;
}

bool isWordCharacter(UChar32 c) {
    return c != noCharacter && (u_isalnum(c) || u_hasBinaryProperty(c, UCHAR_ALPHABETIC));
}

bool isOpening(UChar32 c) {
    const std::int8_t category = u_charType(c);
    return category == U_START_PUNCTUATION || category == U_INITIAL_PUNCTUATION;
}

bool isClosing(UChar32 c) {
    const std::int8_t category = u_charType(c);
    return category == U_END_PUNCTUATION || category == U_FINAL_PUNCTUATION;
}

bool isSentenceTerminator(UChar32 c) {
    return c == 0x2026 || u_hasBinaryProperty(c, UCHAR_S_TERM) != 0;
}

bool isHyphen(UChar32 c) {
    return c == '-' || c == 0x2010 || c == 0x2011 || c == 0x00AD;
}

bool isQuotationMark(UChar32 c) {
    return c == '`' || u_hasBinaryProperty(c, UCHAR_QUOTATION_MARK) != 0;
}

bool isSpaceOrEdge(UChar32 c) {
    return c == noCharacter || u_isUWhiteSpace(c) != 0;
}

/// German closes with the mark with which English opens, so the neighbours speak first.
bool opensQuotation(UChar32 mark, UChar32 before, UChar32 after) {
    const bool startsSomething =
        isSpaceOrEdge(before) || isOpening(before) || u_hasBinaryProperty(before, UCHAR_DASH);
    const bool endsSomething = isSpaceOrEdge(after) || isClosing(after) || u_ispunct(after);
    if (startsSomething != endsSomething) return startsSomething;
    if (isOpening(mark)) return true;
    if (isClosing(mark)) return false;
    return startsSomething;
}

} // namespace

std::string_view punctuationTag(TextRange mark, std::string_view text) {
    const UChar32 character = characterAt(text, mark.start);
    if (character == noCharacter) return NLTagOtherPunctuation;
    const UChar32 before = characterBefore(text, mark.start);
    const UChar32 after = characterAt(text, mark.end());

    if (isQuotationMark(character))
        return opensQuotation(character, before, after) ? NLTagOpenQuote : NLTagCloseQuote;
    if (isSentenceTerminator(character)) return NLTagSentenceTerminator;
    if (isHyphen(character) && isWordCharacter(before) && isWordCharacter(after)) return NLTagWordJoiner;
    if (u_charType(character) == U_CONNECTOR_PUNCTUATION) return NLTagWordJoiner;
    if (u_hasBinaryProperty(character, UCHAR_DASH) != 0) return NLTagDash;
    if (isOpening(character)) return NLTagOpenParenthesis;
    if (isClosing(character)) return NLTagCloseParenthesis;
    return NLTagOtherPunctuation;
}

} // namespace lexiform
