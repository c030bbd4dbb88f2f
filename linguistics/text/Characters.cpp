#include "linguistics/text/Characters.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace lexiform::linguistics {

namespace {

UScriptCode scriptCode(char32_t value) {
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(static_cast<UChar32>(value), &status);
    return U_SUCCESS(status) ? script : USCRIPT_UNKNOWN;
}

bool isLineBreak(char32_t value) {
    return (value >= 0x0A && value <= 0x0D) || value == 0x85 || value == 0x2028 || value == 0x2029;
}

bool writesWordsTogether(char32_t value) {
    // The long vowel mark and its half-width twin are shared by two scripts, so Unicode names neither.
    if (value == 0x30FC || value == 0xFF70) return true;
    switch (scriptCode(value)) {
    case USCRIPT_HAN:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_THAI:
    case USCRIPT_LAO:
    case USCRIPT_KHMER:
    case USCRIPT_MYANMAR:
        return true;
    default:
        return false;
    }
}

CharacterClass classOfFormat(char32_t value) {
    // A byte order mark and a zero-width space part what stands around them, and show no more than a space.
    return value == 0xFEFF || value == 0x200B ? CharacterClass::space : CharacterClass::mark;
}

CharacterClass classByCategory(char32_t value) {
    const auto point = static_cast<UChar32>(value);
    const auto category = U_MASK(u_charType(point));
    if (category & U_GC_M_MASK) return CharacterClass::mark;
    if (category & U_GC_L_MASK)
        return writesWordsTogether(value) ? CharacterClass::joinedLetter : CharacterClass::letter;
    if (category & U_GC_N_MASK)
        return writesWordsTogether(value) ? CharacterClass::joinedLetter : CharacterClass::digit;
    if (category & U_GC_CF_MASK) return classOfFormat(value);
    if (category & U_GC_P_MASK) return CharacterClass::punctuation;
    if (category & U_GC_S_MASK) return CharacterClass::symbol;
    return CharacterClass::other;
}

} // namespace

CharacterClass Characters::computedClass(char32_t value) {
    const auto point = static_cast<UChar32>(value);
    if (value > 0x10FFFF) return CharacterClass::other;
    if (isLineBreak(value)) return CharacterClass::lineBreak;
    if (u_isUWhiteSpace(point)) return CharacterClass::space;
    if (value < 0x80) return classByCategory(value);
    if (u_hasBinaryProperty(point, UCHAR_EMOJI_MODIFIER)) return CharacterClass::mark;
    if (u_hasBinaryProperty(point, UCHAR_REGIONAL_INDICATOR)) return CharacterClass::regionalIndicator;
    if (u_hasBinaryProperty(point, UCHAR_EXTENDED_PICTOGRAPHIC)) return CharacterClass::pictograph;
    return classByCategory(value);
}

Characters::Characters() {
    for (std::size_t value = 0; value < planeSize; ++value) {
        const auto point = static_cast<char32_t>(value);
        classes_[value] = computedClass(point);
        const int script = scriptCode(point);
        scripts_[value] = static_cast<std::uint8_t>(script >= 0 && script < 256 ? script : USCRIPT_COMMON);
    }
}

const Characters& Characters::table() {
    static const Characters characters;
    return characters;
}

std::string_view Characters::scriptOf(char32_t value) const {
    const int script = value < planeSize ? int{scripts_[value]} : int{scriptCode(value)};
    if (script == USCRIPT_COMMON || script == USCRIPT_INHERITED || script == USCRIPT_UNKNOWN) return {};
    const char* name = uscript_getShortName(static_cast<UScriptCode>(script));
    return name ? std::string_view(name) : std::string_view();
}

bool isUpperCase(char32_t value) {
    if (value < 0x80) return value >= 'A' && value <= 'Z';
    return u_isupper(static_cast<UChar32>(value)) || u_istitle(static_cast<UChar32>(value));
}

bool isLowerCase(char32_t value) {
    if (value < 0x80) return value >= 'a' && value <= 'z';
    return u_islower(static_cast<UChar32>(value));
}

} // namespace lexiform::linguistics
