#include "linguistics/language/QuadgramDetector.h"

#include <algorithm>
#include <array>
#include <cstdio> // which the detector's header takes for granted

#include <cld2/public/compact_lang_det.h>
#include <cld2/public/encodings.h>

namespace lexiform::linguistics::quadgrams {

namespace {

struct Renamed {
    std::string_view own;
    std::string_view code; ///< empty: no language of a text
};

// Codes that it spells in an older way, variants, and what is no natural language.
constexpr std::array renamed = {
    Renamed{"iw", "he"},      Renamed{"no", "nb"},  Renamed{"jw", "jv"},  Renamed{"in", "id"},
    Renamed{"mo", "ro"},      Renamed{"ji", "yi"},  Renamed{"sh", "sr"},  Renamed{"sr-ME", "sr"},
    Renamed{"zh-Hant", "zh"}, Renamed{"bh", "bho"}, Renamed{"un", ""},    Renamed{"ut", ""},
    Renamed{"bs", ""},        Renamed{"tlh", ""},   Renamed{"zzp", ""},   Renamed{"zzb", ""},
    Renamed{"zze", ""},       Renamed{"zzh", ""},   Renamed{"fil", "tl"},
};

std::string_view codeOf(CLD2::Language language) {
    const std::string_view own = CLD2::LanguageCode(language);
    if (own.starts_with("xx")) return {};
    for (const Renamed& entry : renamed)
        if (entry.own == own) return entry.code;
    return own;
}

} // namespace

Answer languageOf(const std::string& text) {
    const CLD2::CLDHints none{nullptr, nullptr, CLD2::UNKNOWN_ENCODING, CLD2::UNKNOWN_LANGUAGE};
    std::array<CLD2::Language, 3> languages{};
    std::array<int, 3> percents{};
    std::array<double, 3> scores{};
    int bytes = 0;
    int validBytes = 0;
    bool reliable = false;
    const CLD2::Language language = CLD2::ExtDetectLanguageSummaryCheckUTF8(
        text.data(), static_cast<int>(text.size()), true, &none, CLD2::kCLDFlagBestEffort, languages.data(),
        percents.data(), scores.data(), nullptr, &bytes, &reliable, &validBytes);
    return {codeOf(language), reliable};
}

std::vector<std::string_view> languagesKnown() {
    std::vector<std::string_view> codes;
    for (int language = 0; language < CLD2::NUM_LANGUAGES; ++language)
        if (const auto code = codeOf(static_cast<CLD2::Language>(language)); !code.empty())
            codes.push_back(code);
    std::sort(codes.begin(), codes.end());
    codes.erase(std::unique(codes.begin(), codes.end()), codes.end());
    return codes;
}

} // namespace lexiform::linguistics::quadgrams
