#include "linguistics/lemmas/FoldedWord.h"

#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"

#include <unicode/uchar.h>

namespace lexiform::linguistics {

namespace {

constexpr char32_t dotlessI = 0x131, dottedCapitalI = 0x130, curvedApostrophe = 0x2019;

} // namespace

CaseRules caseRulesOf(std::string_view language) {
    return language == "tr" || language == "az" ? CaseRules::turkic : CaseRules::standard;
}

char32_t lowerCase(char32_t value, CaseRules rules) {
    if (rules == CaseRules::turkic && value == 'I') return dotlessI;
    if (value < 0x80) return value >= 'A' && value <= 'Z' ? value + ('a' - 'A') : value;
    return static_cast<char32_t>(u_tolower(static_cast<UChar32>(value)));
}

char32_t upperCase(char32_t value, CaseRules rules) {
    if (rules == CaseRules::turkic && value == 'i') return dottedCapitalI;
    if (value < 0x80) return value >= 'a' && value <= 'z' ? value - ('a' - 'A') : value;
    return static_cast<char32_t>(u_toupper(static_cast<UChar32>(value)));
}

FoldedWord::FoldedWord(std::string_view form, CaseRules rules) {
    for (std::size_t at = 0; at < form.size();) {
        const CodePoint point = codePointAt(form, at);
        if (!point.valid || size_ == mostCharacters) {
            size_ = 0;
            return;
        }
        original_[size_] = point.value;
        lower_[size_++] = point.value == curvedApostrophe ? U'\'' : lowerCase(point.value, rules);
        at += point.length;
    }
    findCase();
}

void FoldedWord::findCase() {
    std::size_t upper = 0, lower = 0;
    for (std::size_t i = 0; i < size_; ++i) {
        if (isUpperCase(original_[i]))
            ++upper;
        else if (isLowerCase(original_[i]))
            ++lower;
    }
    if (upper + lower == 0)
        case_ = LetterCase::none;
    else if (upper == 0)
        case_ = LetterCase::lower;
    else if (lower == 0)
        case_ = upper == 1 ? LetterCase::oneCapital : LetterCase::upper;
    else
        case_ = upper == 1 && isUpperCase(original_[0]) ? LetterCase::capitalised : LetterCase::mixed;
}

} // namespace lexiform::linguistics
