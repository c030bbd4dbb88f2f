#include "tools/train/lexicon/TurkishForms.h"

#include "tools/train/sources/rules/TurkishSuffixes.h"

#include <array>
#include <utility>

namespace lexiform::train {

using namespace std::string_view_literals;

void TurkishForms::addRoot(std::string_view root, char pos) {
    if (pos != 'v') {
        roots_[std::string(root)].insert(pos);
        return;
    }
    if (root.size() < 5) return;
    const std::string stem(root.substr(0, root.size() - "mak"sv.size()));
    roots_[stem].insert('v');
    // Before -iyor a last open vowel is lost.
    if (stem.ends_with('a') || stem.ends_with('e')) roots_[stem.substr(0, stem.size() - 1)].insert('y');
}

std::string TurkishForms::classesOf(std::string_view form) const {
    std::set<char> classes;
    for (std::size_t end = 2; end <= form.size(); ++end) {
        const bool cutsLetter = end < form.size() && (static_cast<unsigned char>(form[end]) & 0xC0) == 0x80;
        if (cutsLetter) continue;
        analyse(form.substr(0, end), form.substr(end), classes);
        if (end < form.size()) analyseHardened(form.substr(0, end), form.substr(end), classes);
    }
    return {classes.begin(), classes.end()};
}

void TurkishForms::analyse(std::string_view root, std::string_view suffixes, std::set<char>& classes) const {
    const auto found = roots_.find(std::string(root));
    if (found == roots_.end()) return;
    const std::string ending = harmonised(suffixes);
    for (const char pos : found->second) {
        if (pos == 'v' || pos == 'y') {
            if (pos == 'y' && !ending.starts_with("Iy")) continue;
            if (isFiniteVerb(ending)) classes.insert('f');
            if (isParticiple(ending)) classes.insert('p');
            if (isConverb(ending)) classes.insert('g');
        } else if (ending.empty()) {
            classes.insert(pos);
        } else {
            if (isNounInflection(ending)) classes.insert(pos == 'n' || pos == 'j' ? 'i' : pos);
            if (isPredicateNoun(ending)) classes.insert('k');
        }
    }
}

// A last p, ç, t or k becomes b, c, d or ğ before a vowel.
void TurkishForms::analyseHardened(std::string_view root, std::string_view suffixes,
                                   std::set<char>& classes) const {
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 5> softened = {
        {{"b"sv, "p"sv}, {"c"sv, "ç"sv}, {"d"sv, "t"sv}, {"ğ"sv, "k"sv}, {"g"sv, "k"sv}}};
    for (const auto& [soft, hard] : softened)
        if (root.ends_with(soft))
            analyse(std::string(root.substr(0, root.size() - soft.size())) + std::string(hard), suffixes,
                    classes);
}

} // namespace lexiform::train
