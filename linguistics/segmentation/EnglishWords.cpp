#include "linguistics/segmentation/EnglishWords.h"

#include "linguistics/text/AsciiText.h"

namespace lexiform::linguistics {

namespace {

using namespace std::string_view_literals;

constexpr std::array abbreviations = {
    "adm"sv,  "al"sv,    "approx"sv, "apr"sv,  "assn"sv, "asst"sv,   "attn"sv, "atty"sv, "aug"sv,  "ave"sv,
    "blvd"sv, "brig"sv,  "bros"sv,   "capt"sv, "cf"sv,   "cmdr"sv,   "co"sv,   "col"sv,  "conn"sv, "corp"sv,
    "cpl"sv,  "dec"sv,   "dept"sv,   "dr"sv,   "eg"sv,   "esp"sv,    "esq"sv,  "est"sv,  "feb"sv,  "fla"sv,
    "ft"sv,   "gen"sv,   "gov"sv,    "hon"sv,  "ie"sv,   "inc"sv,    "intl"sv, "jan"sv,  "jr"sv,   "lb"sv,
    "lbs"sv,  "lieut"sv, "lt"sv,     "ltd"sv,  "maj"sv,  "messrs"sv, "mlle"sv, "mme"sv,  "mr"sv,   "mrs"sv,
    "ms"sv,   "mt"sv,    "nov"sv,    "oct"sv,  "oz"sv,   "ph"sv,     "pres"sv, "prof"sv, "pvt"sv,  "rep"sv,
    "reps"sv, "rev"sv,   "sen"sv,    "sens"sv, "sept"sv, "sgt"sv,    "sr"sv,   "st"sv,   "supt"sv, "tel"sv,
    "univ"sv, "viz"sv,   "vs"sv};
constexpr std::array abbreviationsBeforeNumbers = {
    "app"sv, "art"sv, "ca"sv,  "ch"sv, "chap"sv, "ed"sv, "ext"sv, "fig"sv, "figs"sv, "jul"sv, "jun"sv,
    "mar"sv, "no"sv,  "nos"sv, "p"sv,  "pg"sv,   "pp"sv, "sec"sv, "ver"sv, "vol"sv,  "vols"sv};
constexpr std::array abbreviationsInsideSentences = {"etc"sv, "hrs"sv, "v"sv, "yrs"sv};
constexpr std::array dayNames = {"fri"sv,  "mon"sv,   "sat"sv, "sun"sv,  "thu"sv,
                                 "thur"sv, "thurs"sv, "tue"sv, "tues"sv, "wed"sv};
constexpr std::array titles = {"adm"sv, "atty"sv,   "brig"sv, "capt"sv, "cmdr"sv, "col"sv,   "cpl"sv,
                               "dr"sv,  "ft"sv,     "gen"sv,  "gov"sv,  "hon"sv,  "lieut"sv, "lt"sv,
                               "maj"sv, "messrs"sv, "mlle"sv, "mme"sv,  "mr"sv,   "mrs"sv,   "ms"sv,
                               "mt"sv,  "pres"sv,   "prof"sv, "pvt"sv,  "rep"sv,  "reps"sv,  "rev"sv,
                               "sen"sv, "sens"sv,   "sgt"sv,  "st"sv,   "supt"sv, "vs"sv};
constexpr std::array prefixes = {
    "anti"sv, "bi"sv,    "co"sv,     "counter"sv, "cross"sv, "de"sv,    "e"sv,    "em"sv,
    "ex"sv,   "extra"sv, "hyper"sv,  "inter"sv,   "intra"sv, "macro"sv, "meta"sv, "micro"sv,
    "mid"sv,  "mini"sv,  "multi"sv,  "neo"sv,     "non"sv,   "over"sv,  "post"sv, "pre"sv,
    "pro"sv,  "proto"sv, "pseudo"sv, "psycho"sv,  "quasi"sv, "re"sv,    "semi"sv, "socio"sv,
    "sub"sv,  "super"sv, "trans"sv,  "tri"sv,     "ultra"sv, "un"sv,    "under"sv};
constexpr std::array units = {"am"sv, "b"sv,   "billion"sv, "bn"sv,      "c"sv,     "cm"sv,      "days"sv,
                              "f"sv,  "ft"sv,  "g"sv,       "gb"sv,      "hours"sv, "hr"sv,      "hrs"sv,
                              "k"sv,  "kb"sv,  "kg"sv,      "km"sv,      "lb"sv,    "lbs"sv,     "m"sv,
                              "mb"sv, "mg"sv,  "million"sv, "min"sv,     "mins"sv,  "minutes"sv, "ml"sv,
                              "mm"sv, "mph"sv, "oz"sv,      "percent"sv, "pm"sv,    "px"sv,      "sec"sv,
                              "t"sv,  "x"sv,   "years"sv,   "yr"sv,      "yrs"sv};
constexpr std::array networkEndings = {
    "asp"sv,  "au"sv,   "biz"sv,  "ca"sv,   "ch"sv,   "co"sv,  "com"sv, "cpp"sv,  "css"sv, "csv"sv,
    "de"sv,   "doc"sv,  "docx"sv, "edu"sv,  "eu"sv,   "exe"sv, "fr"sv,  "gif"sv,  "gov"sv, "htm"sv,
    "html"sv, "ie"sv,   "info"sv, "io"sv,   "jpeg"sv, "jpg"sv, "js"sv,  "json"sv, "jsp"sv, "mil"sv,
    "mp3"sv,  "mp4"sv,  "net"sv,  "nl"sv,   "nz"sv,   "odt"sv, "org"sv, "pdf"sv,  "php"sv, "png"sv,
    "ppt"sv,  "pptx"sv, "ps"sv,   "py"sv,   "rtf"sv,  "ru"sv,  "svg"sv, "tv"sv,   "txt"sv, "uk"sv,
    "url"sv,  "wav"sv,  "xls"sv,  "xlsx"sv, "xml"sv,  "zip"sv};

struct Contraction {
    std::string_view word;
    std::size_t firstPart;
};

// "cant" and "wont" are words of their own too, but hardly ever meant.
constexpr std::array contractions = {
    Contraction{"aint", 2},     Contraction{"alot", 1},    Contraction{"arent", 3},  Contraction{"cannot", 3},
    Contraction{"cant", 2},     Contraction{"couldnt", 5}, Contraction{"didnt", 3},  Contraction{"doesnt", 4},
    Contraction{"dont", 2},     Contraction{"gonna", 3},   Contraction{"gotta", 3},  Contraction{"hadnt", 3},
    Contraction{"hasnt", 3},    Contraction{"havent", 4},  Contraction{"heres", 4},  Contraction{"hes", 2},
    Contraction{"im", 1},       Contraction{"isnt", 2},    Contraction{"itll", 2},   Contraction{"ive", 1},
    Contraction{"lotta", 3},    Contraction{"mustnt", 4},  Contraction{"outta", 3},  Contraction{"shes", 3},
    Contraction{"shouldnt", 6}, Contraction{"thats", 4},   Contraction{"theres", 5}, Contraction{"theyll", 4},
    Contraction{"theyre", 4},   Contraction{"theyve", 4},  Contraction{"wanna", 3},  Contraction{"wasnt", 3},
    Contraction{"werent", 4},   Contraction{"weve", 2},    Contraction{"whats", 4},  Contraction{"wheres", 5},
    Contraction{"wont", 2},     Contraction{"wouldnt", 5}, Contraction{"youll", 3},  Contraction{"youre", 3},
    Contraction{"youve", 3}};

// Words that hardly ever follow "its" and "your" where these tell an owner.
constexpr std::array notOwned = {
    "a"sv,      "actually"sv, "all"sv,   "almost"sv,     "already"sv, "also"sv,   "always"sv,
    "an"sv,     "because"sv,  "been"sv,  "definitely"sv, "getting"sv, "going"sv,  "gonna"sv,
    "he"sv,     "her"sv,      "his"sv,   "how"sv,        "i"sv,       "in"sv,     "it"sv,
    "just"sv,   "like"sv,     "my"sv,    "never"sv,      "no"sv,      "not"sv,    "nothing"sv,
    "ok"sv,     "okay"sv,     "on"sv,    "probably"sv,   "quite"sv,   "really"sv, "she"sv,
    "simply"sv, "so"sv,       "still"sv, "that"sv,       "the"sv,     "their"sv,  "they"sv,
    "this"sv,   "to"sv,       "too"sv,   "usually"sv,    "we"sv,      "what"sv,   "where"sv,
    "why"sv,    "you"sv,      "your"sv};

constexpr bool orderedByWord(const Contraction& a, const Contraction& b) {
    return a.word < b.word;
}

static_assert(std::is_sorted(abbreviations.begin(), abbreviations.end()));
static_assert(std::is_sorted(abbreviationsBeforeNumbers.begin(), abbreviationsBeforeNumbers.end()));
static_assert(std::is_sorted(abbreviationsInsideSentences.begin(), abbreviationsInsideSentences.end()));
static_assert(std::is_sorted(dayNames.begin(), dayNames.end()));
static_assert(std::is_sorted(titles.begin(), titles.end()));
static_assert(std::is_sorted(prefixes.begin(), prefixes.end()));
static_assert(std::is_sorted(units.begin(), units.end()));
static_assert(std::is_sorted(notOwned.begin(), notOwned.end()));
static_assert(std::is_sorted(networkEndings.begin(), networkEndings.end()));
static_assert(std::is_sorted(contractions.begin(), contractions.end(), orderedByWord));

// Whether a word ends in the two letters of one of the contractions; refuses most words at once.
constexpr bool endsLikeContraction(std::string_view word) {
    const char before = asciiLower(word[word.size() - 2]);
    switch (asciiLower(word.back())) {
    case 't':
        return before == 'n' || before == 'o';
    case 'a':
        return before == 'n' || before == 't';
    case 'm':
        return before == 'i';
    case 'e':
        return before == 'v' || before == 'r';
    case 's':
        return before == 't' || before == 'e';
    case 'l':
        return before == 'l';
    default:
        return false;
    }
}

static_assert(std::all_of(contractions.begin(), contractions.end(), [](const Contraction& contraction) {
    return endsLikeContraction(contraction.word);
}));

} // namespace

bool isAbbreviation(std::string_view word) {
    return holds(abbreviations, LowerCasedWord(word).view());
}

bool isAbbreviationBeforeNumber(std::string_view word) {
    return holds(abbreviationsBeforeNumbers, LowerCasedWord(word).view());
}

bool isAbbreviationInsideSentence(std::string_view word) {
    return holds(abbreviationsInsideSentences, LowerCasedWord(word).view());
}

bool isDayName(std::string_view word) {
    // "sat" and "sun" in small letters are words of their own.
    return isAsciiUpper(word.front()) && holds(dayNames, LowerCasedWord(word).view());
}

bool isTitleAbbreviation(std::string_view word) {
    return holds(titles, LowerCasedWord(word).view());
}

bool keepsHyphen(std::string_view prefix) {
    return holds(prefixes, LowerCasedWord(prefix).view());
}

bool isUnitAfterFigure(std::string_view unit) {
    return holds(units, LowerCasedWord(unit).view());
}

bool endsNetworkName(std::string_view word) {
    return holds(networkEndings, LowerCasedWord(word).view());
}

std::size_t firstPartOfContraction(std::string_view word) {
    if (word.size() < 2 || word.size() > 8 || !endsLikeContraction(word)) return 0;
    const LowerCasedWord lower(word);
    // "IM" and "IVE" in capitals are abbreviations.
    if (word.size() <= 3 && isAsciiUpper(word.back())) return 0;
    const auto* found = std::lower_bound(contractions.begin(), contractions.end(),
                                         Contraction{lower.view(), 0}, orderedByWord);
    return found != contractions.end() && found->word == lower.view() ? found->firstPart : 0;
}

bool mayTellOwner(std::string_view word) {
    if (word.size() == 3) return word.ends_with("ts") && asciiLower(word[0]) == 'i';
    return word.size() == 4 && word.ends_with("our") && asciiLower(word[0]) == 'y';
}

bool isNotOwned(std::string_view word) {
    return holds(notOwned, LowerCasedWord(word).view());
}

} // namespace lexiform::linguistics
