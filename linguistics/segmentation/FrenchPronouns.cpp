#include "linguistics/segmentation/FrenchPronouns.h"

#include "linguistics/segmentation/SpecialForms.h"
#include "linguistics/text/AsciiText.h"

namespace lexiform::linguistics {

namespace {

/// A pronoun with the ends of words that it may stand behind: those of the verb's person.
struct Inverted {
    std::string_view pronoun; ///< without its hyphen
    std::string_view ends;    ///< separated by spaces; all if empty
};

constexpr std::string_view imperatives = "s e z va";

constexpr std::array<Inverted, 21> inverted = {{
    {"il", "t d"},        {"elle", "t d"},
    {"on", "t d"},        {"ils", "nt"},
    {"elles", "nt"},      {"je", ""},
    {"tu", "s x"},        {"ce", "t sera"},
    {"vous", "z s"},      {"nous", imperatives},
    {"moi", imperatives}, {"toi", "s e va"},
    {"lui", imperatives}, {"leur", imperatives},
    {"le", imperatives},  {"la", imperatives},
    {"les", imperatives}, {"y", "s z"},
    {"en", "s z"},        {"ci", ""},
    {"l\xC3\xA0", ""},
}};

// What may follow a vowel only with a -t- between ("a-t-il", "va-t-en").
constexpr std::array<std::string_view, 6> afterT = {"elle", "elles", "en", "il", "ils", "on"};
// Two pronouns after one verb: the second of them.
constexpr std::array<std::string_view, 8> second = {"en", "la", "le", "les", "leur", "lui", "moi", "y"};
// "donne-m'en", "va-t'en", "tiens-t'y"
constexpr std::array<std::string_view, 2> afterElision = {"en", "y"};

// No verb, whatever follows.
constexpr std::array<std::string_view, 17> neverVerbs = {
    "celle",  "celles", "celui", "ceux", "chez", "comme", "contre", "de",  "entre",
    "hormis", "jusque", "oh",    "par",  "sans", "sauf",  "toi",    "vers"};
static_assert(std::is_sorted(afterT.begin(), afterT.end()));
static_assert(std::is_sorted(second.begin(), second.end()));
static_assert(std::is_sorted(neverVerbs.begin(), neverVerbs.end()));

// The longest are "-t-elles" and "-nous-leur".
constexpr std::size_t longestPronouns = 12;

// Whether `word` ends with one of `ends`.
bool endsInOneOf(std::string_view word, std::string_view ends) {
    if (ends.empty()) return true;
    for (std::size_t at = 0; at <= ends.size();) {
        const std::size_t space = std::min(ends.find(' ', at), ends.size());
        if (word.ends_with(ends.substr(at, space - at))) return true;
        at = space + 1;
    }
    return false;
}

const Inverted* invertedOf(std::string_view pronoun) {
    const auto* const found = std::find_if(inverted.begin(), inverted.end(),
                                           [&](const Inverted& one) { return one.pronoun == pronoun; });
    return found == inverted.end() ? nullptr : found;
}

bool mayFollow(std::string_view pronoun, std::string_view verb) {
    const Inverted* const one = invertedOf(pronoun);
    return one && endsInOneOf(verb, one->ends);
}

// Whether what stands behind the hyphen of `verb`, all in lower case, are pronouns of it.
bool arePronounsOf(std::string_view verb, std::string_view pronouns) {
    const std::size_t hyphen = pronouns.find('-');
    if (hyphen != std::string_view::npos) {
        const std::string_view first = pronouns.substr(0, hyphen), last = pronouns.substr(hyphen + 1);
        if (first == "t") return holds(afterT, last);
        return holds(second, last) && mayFollow(first, verb);
    }
    const std::size_t mark = pronouns.empty() ? 0 : lengthOfApostrophe(pronouns.substr(1));
    if (mark != 0 && (pronouns[0] == 'm' || pronouns[0] == 't' || pronouns[0] == 'l'))
        return holds(afterElision, pronouns.substr(1 + mark)) && endsInOneOf(verb, imperatives);
    return mayFollow(pronouns, verb) && !(verb == "rendez" && pronouns == "vous");
}

// Compounds have more hyphens than their last ("sur-le-champ-il", "Châlons-en-Champagne"), but "y-a-t-il".
bool mayBeVerb(std::string_view word) {
    return !holds(neverVerbs, word) && (word.find('-') == std::string_view::npos || word == "y-a");
}

} // namespace

std::size_t startOfFrenchPronouns(std::string_view word) {
    const std::size_t from = word.size() - std::min(word.size(), longestPronouns);
    for (std::size_t hyphen = word.find('-', from); hyphen != std::string_view::npos;
         hyphen = word.find('-', hyphen + 1)) {
        if (hyphen == 0) continue;
        // Of a long word the end is enough.
        const std::size_t verbStart = hyphen - std::min<std::size_t>(hyphen, 16);
        const LowerCasedWord verb(word.substr(verbStart, hyphen - verbStart));
        const LowerCasedWord pronouns(word.substr(hyphen + 1));
        if (arePronounsOf(verb.view(), pronouns.view()) && mayBeVerb(verb.view())) return hyphen;
    }
    return word.size();
}

std::size_t lengthOfFrenchPronoun(std::string_view pronouns) {
    const std::size_t afterTie = pronouns.starts_with("-t-") || pronouns.starts_with("-T-") ? 3 : 1;
    const std::size_t hyphen = pronouns.find('-', std::min(afterTie, pronouns.size()));
    if (hyphen != std::string_view::npos) return hyphen;
    const std::size_t mark = pronouns.size() > 2 ? lengthOfApostrophe(pronouns.substr(2)) : 0;
    return mark != 0 ? 2 + mark : pronouns.size();
}

} // namespace lexiform::linguistics
