#include "linguistics/text/UniversalPos.h"

#include <algorithm>
#include <array>

namespace lexiform::linguistics {

namespace {

constexpr std::array<std::string_view, universalPosCount> names = {
    "ADJ",  "ADP",  "ADV",   "AUX",   "CCONJ", "DET", "INTJ", "NOUN", "NUM",
    "PART", "PRON", "PROPN", "PUNCT", "SCONJ", "SYM", "VERB", "X"};

} // namespace

std::string_view nameOf(UniversalPos pos) {
    return names[static_cast<std::size_t>(pos)];
}

std::optional<UniversalPos> universalPosNamed(std::string_view name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) return std::nullopt;
    return static_cast<UniversalPos>(found - names.begin());
}

} // namespace lexiform::linguistics
