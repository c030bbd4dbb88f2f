#include "linguistics/language/Writing.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace lexiform::linguistics {

namespace {

struct WritingRow {
    Writing writing;
    std::string_view language; ///< empty where several languages write so
    UScriptCode script;
};

constexpr std::array rows = {
    WritingRow{Writing::latin, "", USCRIPT_LATIN},
    WritingRow{Writing::cyrillic, "", USCRIPT_CYRILLIC},
    WritingRow{Writing::arabic, "", USCRIPT_ARABIC},
    WritingRow{Writing::devanagari, "", USCRIPT_DEVANAGARI},
    WritingRow{Writing::bengali, "", USCRIPT_BENGALI},
    WritingRow{Writing::hebrew, "", USCRIPT_HEBREW},
    WritingRow{Writing::ethiopic, "", USCRIPT_ETHIOPIC},
    WritingRow{Writing::tibetan, "", USCRIPT_TIBETAN},
    WritingRow{Writing::han, "zh", USCRIPT_HAN},
    WritingRow{Writing::han, "zh", USCRIPT_BOPOMOFO},
    WritingRow{Writing::kana, "ja", USCRIPT_HIRAGANA},
    WritingRow{Writing::kana, "ja", USCRIPT_KATAKANA},
    WritingRow{Writing::hangul, "ko", USCRIPT_HANGUL},
    WritingRow{Writing::greek, "el", USCRIPT_GREEK},
    WritingRow{Writing::thai, "th", USCRIPT_THAI},
    WritingRow{Writing::georgian, "ka", USCRIPT_GEORGIAN},
    WritingRow{Writing::armenian, "hy", USCRIPT_ARMENIAN},
    WritingRow{Writing::khmer, "km", USCRIPT_KHMER},
    WritingRow{Writing::lao, "lo", USCRIPT_LAO},
    WritingRow{Writing::burmese, "my", USCRIPT_MYANMAR},
    WritingRow{Writing::gurmukhi, "pa", USCRIPT_GURMUKHI},
    WritingRow{Writing::gujarati, "gu", USCRIPT_GUJARATI},
    WritingRow{Writing::oriya, "or", USCRIPT_ORIYA},
    WritingRow{Writing::tamil, "ta", USCRIPT_TAMIL},
    WritingRow{Writing::telugu, "te", USCRIPT_TELUGU},
    WritingRow{Writing::kannada, "kn", USCRIPT_KANNADA},
    WritingRow{Writing::malayalam, "ml", USCRIPT_MALAYALAM},
    WritingRow{Writing::sinhala, "si", USCRIPT_SINHALA},
    WritingRow{Writing::thaana, "dv", USCRIPT_THAANA},
    WritingRow{Writing::cherokee, "chr", USCRIPT_CHEROKEE},
};

Writing writingOfScript(UScriptCode script) {
    for (const WritingRow& row : rows)
        if (row.script == script) return row.writing;
    return Writing::other;
}

Writing computedWriting(char32_t value) {
    const auto point = static_cast<UChar32>(value);
    const auto category = U_MASK(u_charType(point));
    if (!(category & (U_GC_L_MASK | U_GC_M_MASK)) || isSilent(value)) return Writing::none;
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(point, &status);
    if (U_FAILURE(status) || script == USCRIPT_COMMON || script == USCRIPT_INHERITED) return Writing::none;
    return writingOfScript(script);
}

} // namespace

bool isSilent(char32_t value) {
    const bool mark = value >= 0x300 && value <= 0x36F;
    const bool arabic = value == 0x640 || (value >= 0x64B && value <= 0x65F) || value == 0x670;
    const bool hebrew = value >= 0x591 && value <= 0x5C7;
    return value == 0xAD || mark || arabic || hebrew;
}

std::string_view onlyLanguageOf(Writing writing) {
    for (const WritingRow& row : rows)
        if (row.writing == writing) return row.language;
    return {};
}

std::string_view onlyLanguageOf(std::string_view script) {
    for (const WritingRow& row : rows)
        if (script == uscript_getShortName(row.script)) return row.language;
    return {};
}

LetterTable::LetterTable() {
    for (std::size_t value = 0; value < planeSize; ++value) {
        writings_[value] = computedWriting(static_cast<char32_t>(value));
        const UChar32 lower = u_tolower(static_cast<UChar32>(value));
        lower_[value] = static_cast<char16_t>(lower < 0x10000 ? static_cast<std::size_t>(lower) : value);
    }
}

const LetterTable& LetterTable::table() {
    static const LetterTable table;
    return table;
}

Writing LetterTable::farWritingOf(char32_t value) {
    return computedWriting(value);
}

} // namespace lexiform::linguistics
