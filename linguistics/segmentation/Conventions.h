#pragma once

#include <string_view>

namespace lexiform::linguistics {

/// Where the treebanks of languages part ways, as far as rules can say it. What else a language has is
/// learnt from them.
struct Conventions {
    bool english = false;            ///< contractions, enclitics, clipped words, English abbreviations
    bool partsHyphens = false;       ///< "well|-|known"
    bool elides = false;             ///< "l'|homme"
    bool tiesPronouns = false;       ///< "dit|-elle": French verbs and their pronouns
    bool groupsBySpaces = false;     ///< "10 000" is one number
    bool hasPointedOrdinals = false; ///< "3. Mai": the full stop belongs to the number
    bool partsParticles = false;     ///< "rumah|nya", as Indonesian writes its enclitics
};

/// The conventions of `language`, BCP 47. An unknown or empty one gets those that do no language harm.
[[nodiscard]] Conventions conventionsOf(std::string_view language);

} // namespace lexiform::linguistics
