#include "linguistics/segmentation/Conventions.h"

#include <algorithm>
#include <array>

namespace lexiform::linguistics {

namespace {

using namespace std::string_view_literals;

template <std::size_t size>
bool isOneOf(const std::array<std::string_view, size>& languages, std::string_view language) {
    return std::find(languages.begin(), languages.end(), language) != languages.end();
}

} // namespace

Conventions conventionsOf(std::string_view language) {
    const std::string_view primary = language.substr(0, language.find('-'));
    Conventions conventions;
    conventions.english = primary == "en";
    conventions.partsHyphens = isOneOf(std::array{"en"sv, "de"sv, "tr"sv}, primary);
    conventions.elides = isOneOf(std::array{"fr"sv, "it"sv, "ca"sv, "oc"sv}, primary);
    conventions.tiesPronouns = primary == "fr";
    conventions.groupsBySpaces = isOneOf(std::array{"fr"sv, "fi"sv}, primary);
    conventions.hasPointedOrdinals =
        isOneOf(std::array{"de"sv, "da"sv, "nb"sv, "nn"sv, "no"sv, "fi"sv, "tr"sv}, primary);
    conventions.partsParticles = primary == "id";
    return conventions;
}

} // namespace lexiform::linguistics
