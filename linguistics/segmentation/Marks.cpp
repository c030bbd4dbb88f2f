#include "linguistics/segmentation/Marks.h"

#include <string_view>

namespace lexiform::linguistics {

namespace {

// Marks that Unicode files under punctuation, but that stand for a word or a quantity.
bool isSymbolMark(char32_t mark) {
    return mark == '%' || mark == '&' || mark == '#' || mark == '@' || mark == 0x2030 || mark == 0xA7;
}

} // namespace

TokenKind kindOfMark(const Unit& unit) {
    return unit.kind == CharacterClass::punctuation && !isSymbolMark(unit.base) ? TokenKind::punctuation
                                                                                : TokenKind::symbol;
}

// Brackets and currency signs are told apart even where they follow each other.
bool mayRepeat(char32_t mark) {
    constexpr std::u32string_view marks = U".,-!?*=~#_+<>'`:;|^\u2013\u2014\u2026";
    return marks.find(mark) != std::u32string_view::npos;
}

bool continuesRun(char32_t first, char32_t next) {
    if (first == '!' || first == '?') return next == '!' || next == '?';
    if (first == '.' || first == 0x2026) return next == '.' || next == 0x2026;
    return next == first;
}

} // namespace lexiform::linguistics
