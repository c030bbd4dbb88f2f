#include "tools/train/lemmas/TurkishParadigms.h"

#include <array>
#include <vector>

namespace lexiform::train {

namespace {

/// The last vowel of a word decides the vowels of what is added: back or front, round or not.
struct Harmony {
    bool back = true, round = false, endsInVowel = false;
};

struct Vowel {
    std::string_view spelt;
    bool back, round;
};

constexpr std::array vowels = {Vowel{"a", true, false},  Vowel{"e", false, false}, Vowel{"ı", true, false},
                               Vowel{"i", false, false}, Vowel{"o", true, true},   Vowel{"ö", false, true},
                               Vowel{"u", true, true},   Vowel{"ü", false, true}};
constexpr std::array<std::string_view, 8> hard = {"p", "ç", "t", "k", "f", "h", "s", "ş"};

Harmony harmonyOf(std::string_view word) {
    Harmony harmony;
    std::size_t last = 0;
    for (std::size_t at = 0; at < word.size(); ++at)
        for (const Vowel& vowel : vowels)
            if (word.substr(at).starts_with(vowel.spelt)) {
                last = at + vowel.spelt.size();
                harmony = {vowel.back, vowel.round, last == word.size()};
            }
    harmony.endsInVowel = last == word.size() && last != 0;
    return harmony;
}

bool endsHard(std::string_view word) {
    for (const std::string_view consonant : hard)
        if (word.ends_with(consonant)) return true;
    return false;
}

/// Adds endings written as in grammars: A is a or e, I one of four vowels, D d or t, C c or ç; a letter in
/// brackets is there after a vowel, "(I)" after a consonant.
std::string with(std::string word, std::string_view ending) {
    for (std::size_t at = 0; at < ending.size(); ++at) {
        char c = ending[at];
        const Harmony harmony = harmonyOf(word);
        if (c == '(') {
            c = ending[at + 1];
            at += 2;
            if (harmony.endsInVowel == (c == 'I' || c == 'A')) continue;
        }
        if (c == 'A')
            word += harmony.back ? "a" : "e";
        else if (c == 'I')
            word += harmony.back ? (harmony.round ? "u" : "ı") : (harmony.round ? "ü" : "i");
        else if (c == 'D')
            word += endsHard(word) ? "t" : "d";
        else if (c == 'S')
            word += "ş";
        else if (c == 'G')
            word += "ğ";
        else
            word += c;
    }
    return word;
}

// Before a vowel "kitap" may become "kitab", "ağaç" "ağac", "kanat" "kanad", "ekmek" "ekmeğ".
std::vector<std::string> stemsOf(std::string_view root) {
    std::vector<std::string> stems{std::string(root)};
    constexpr std::array<std::pair<std::string_view, std::string_view>, 5> softened = {
        {{"nk", "ng"}, {"p", "b"}, {"ç", "c"}, {"t", "d"}, {"k", "ğ"}}};
    for (const auto& [from, to] : softened)
        if (root.ends_with(from)) {
            stems.push_back(std::string(root.substr(0, root.size() - from.size())) + std::string(to));
            break;
        }
    return stems;
}

constexpr std::array<std::string_view, 11> cases = {"",      "(y)I", "(y)A", "DA",    "DAn", "(n)In",
                                                    "(y)lA", "DAki", "lI",   "(y)DI", "DIr"};
constexpr std::array<std::string_view, 5> possessors = {"(I)m", "(I)n", "(I)mIz", "(I)nIz", "(s)I"};
constexpr std::array<std::string_view, 7> thirdCases = {"", "nI", "nA", "nDA", "nDAn", "nIn", "ylA"};

void tellCases(const std::string& word, const std::function<void(const std::string&)>& visitor) {
    for (const std::string_view ending : cases)
        visitor(with(word, ending));
}

void tellPossessed(const std::string& stem, const std::function<void(const std::string&)>& visitor) {
    for (const std::string_view possessor : possessors) {
        const std::string word = with(stem, possessor);
        if (possessor != "(s)I") {
            tellCases(word, visitor);
            continue;
        }
        for (const std::string_view ending : thirdCases)
            visitor(with(word, ending));
    }
}

} // namespace

void forEachTurkishNounForm(std::string_view root, const std::function<void(const std::string&)>& visitor) {
    for (const std::string& stem : stemsOf(root)) {
        tellCases(stem, visitor);
        tellPossessed(stem, visitor);
    }
    const std::string plural = with(std::string(root), "lAr");
    tellCases(plural, visitor);
    tellPossessed(plural, visitor);
}

void forEachTurkishVerbForm(std::string_view root, const std::function<void(const std::string&)>& visitor) {
    constexpr std::array<std::string_view, 6> pastPersons = {"", "m", "n", "k", "nIz", "lAr"};
    constexpr std::array<std::string_view, 8> persons = {"",      "(y)Im", "sIn",   "(y)Iz",
                                                         "sInIz", "lAr",   "(y)DI", "DIr"};
    constexpr std::array<std::string_view, 6> tenses = {"(I)yor", "mIS", "(y)AcAk", "mAlI", "(A)r", "(I)r"};
    constexpr std::array<std::string_view, 10> others = {"(y)An", "(y)Ip", "(y)IncA", "(y)ArAk", "mAdAn",
                                                         "sIn",   "(y)In", "(y)AlIm", "(y)ken",  "DIkCA"};
    constexpr std::array<std::string_view, 4> nominals = {"DIk", "(y)AcAk", "mA", "mAk"};
    std::vector<std::string> stems = stemsOf(root);
    stems.push_back(with(std::string(root), "mA"));
    for (const std::string& stem : stems) {
        for (const std::string_view past : {"DI", "sA"})
            for (const std::string_view person : pastPersons)
                visitor(with(with(stem, past), person));
        for (const std::string_view tense : tenses)
            for (const std::string_view person : persons) {
                // The vowel of the root gives way: "başla" makes "başlıyor".
                const bool drops = tense == "(I)yor" && (stem.ends_with("a") || stem.ends_with("e"));
                visitor(drops ? with(with(stem.substr(0, stem.size() - 1), "Iyor"), person)
                              : with(with(stem, tense), person));
            }
        for (const std::string_view ending : others)
            visitor(with(stem, ending));
        for (const std::string_view nominal : nominals)
            for (const std::string& noun : stemsOf(with(stem, nominal)))
                tellPossessed(noun, visitor);
        visitor(with(stem, "mAk"));
        visitor(with(stem, "mA"));
    }
}

} // namespace lexiform::train
