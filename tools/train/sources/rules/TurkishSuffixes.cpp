#include "tools/train/sources/rules/TurkishSuffixes.h"

#include <array>
#include <regex>
#include <utility>

namespace lexiform::train {

namespace {

using namespace std::string_view_literals;

std::string nominalInflection() {
    return "(lAr)?(Im|m|In|n|sI|I|ImIz|mIz|InIz|nIz|lArI)?"
           "(y?I|n?I|n?A|y?A|n?DA|n?DAn|n?In|y?lA|n?CA)?";
}

std::string copula() {
    return "(y?DI(m|n|k|lAr|nIz)?|y?mIS(Im|sIn|Iz|lAr)?|y?sA(m|n|k|lAr|nIz)?|DIr(lAr)?|y?kAn)";
}

// Voice, negation, ability: what may stand between a verb's root and its ending.
std::string verbStem() {
    return "(I?[lnS]|DIr|I?D|[IA]r){0,3}((y?A)?mA)?(y?AbIl|y?Iver)?";
}

} // namespace

std::string harmonised(std::string_view suffixes) {
    static constexpr std::array<std::pair<std::string_view, char>, 18> letters = {{
        {"a"sv, 'A'},
        {"e"sv, 'A'},
        {"ı"sv, 'I'},
        {"i"sv, 'I'},
        {"u"sv, 'I'},
        {"ü"sv, 'I'},
        {"â"sv, 'A'},
        {"î"sv, 'I'},
        {"û"sv, 'I'},
        {"d"sv, 'D'},
        {"t"sv, 'D'},
        {"c"sv, 'C'},
        {"ç"sv, 'C'},
        {"ş"sv, 'S'},
        {"ğ"sv, 'G'},
        {"o"sv, 'O'},
        {"ö"sv, 'O'},
        {"’"sv, '\''},
    }};
    std::string result;
    for (std::size_t at = 0; at < suffixes.size();) {
        std::size_t length = 1;
        char letter = suffixes[at];
        for (const auto& [spelt, meant] : letters)
            if (suffixes.substr(at).starts_with(spelt)) {
                letter = meant;
                length = spelt.size();
            }
        result += letter;
        at += length;
    }
    return result;
}

bool isNounInflection(const std::string& suffixes) {
    static const std::regex pattern("'?" + nominalInflection() + "(k[Iı](lAr)?" + nominalInflection() + ")?");
    return std::regex_match(suffixes, pattern);
}

bool isPredicateNoun(const std::string& suffixes) {
    static const std::regex pattern("'?" + nominalInflection() + copula());
    return std::regex_match(suffixes, pattern);
}

bool isFiniteVerb(const std::string& suffixes) {
    static const std::regex pattern(
        verbStem() +
        "(DI(m|n|k|lAr|nIz)?|(mIS|y?ACA[kG]|[IA]?r|z|I?yOr|mAlI|mAkDA)(lAr)?(I?m|sIn|I?z|sInIz|y?Im|y?Iz)?|"
        "sA(m|n|k|lAr|nIz)?|sInlAr|sIn|y?In(Iz)?|y?AlIm|y?AyIm|)" +
        copula() + "?");
    return std::regex_match(suffixes, pattern);
}

bool isParticiple(const std::string& suffixes) {
    static const std::regex pattern(verbStem() + "((y?An|DI[kG]|y?ACA[kG]|mIS|mA|mAk|y?IS)" +
                                    nominalInflection() + "|mAz|mAz?lIk" + nominalInflection() + ")");
    return std::regex_match(suffixes, pattern);
}

bool isConverb(const std::string& suffixes) {
    static const std::regex pattern(
        verbStem() + "(y?Ip|y?ArAk|y?InCA|mADAn|y?AlI|DIkCA|DI[kG]InDA|[IA]?rkAn|mAksIzIn|y?A)");
    return std::regex_match(suffixes, pattern);
}

} // namespace lexiform::train
