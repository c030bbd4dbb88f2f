#include "tools/train/lemmas/SpellingTags.h"

#include <algorithm>
#include <initializer_list>

namespace lexiform::train {

namespace {

using linguistics::UniversalPos;

bool endsWithAny(std::string_view word, std::initializer_list<std::string_view> endings) {
    return std::any_of(endings.begin(), endings.end(), [&](auto ending) { return word.ends_with(ending); });
}

} // namespace

// The flags of French verbs are a small letter and a figure; those of nouns and adjectives are capitals.
std::vector<UniversalPos> frenchTags(const AffixedForm& form) {
    if (form.flag.size() != 2 || form.form.find('\'') != std::string_view::npos) return {};
    const bool verb =
        form.flag[0] >= 'a' && form.flag[0] <= 'z' && endsWithAny(form.word, {"er", "ir", "re", "ïr"});
    if (verb) return {UniversalPos::VERB};
    if (form.flag == "S.") return {UniversalPos::NOUN, UniversalPos::ADJ};
    if (form.flag[0] == 'F' || form.flag[0] == 'W') return {UniversalPos::ADJ};
    return {};
}

std::vector<UniversalPos> spanishTags(const AffixedForm& form) {
    const bool infinitive = endsWithAny(form.word, {"ar", "er", "ir", "ír"});
    if (infinitive &&
        (form.flag == "R" || form.flag == "E" || form.flag == "I" || form.flag == "X" || form.flag == "Y"))
        return {UniversalPos::VERB};
    if (form.flag == "S") return {UniversalPos::NOUN, UniversalPos::ADJ};
    if (form.flag == "G") return {UniversalPos::ADJ};
    return {};
}

// A Russian word's class shows in its ending; participles, which are words of their own in the list, are left
// out: treebanks give them the infinitive.
std::vector<UniversalPos> russianTags(const AffixedForm& form) {
    if (endsWithAny(form.word,
                    {"вший", "ущий", "ющий", "ащий", "ящий", "нный", "тый", "мый", "шийся", "щийся"}))
        return {};
    if (endsWithAny(form.word, {"ый", "ий", "ой"})) return {UniversalPos::ADJ};
    if (endsWithAny(form.word, {"ть", "ти", "чь", "ться", "тись", "чься"})) return {UniversalPos::VERB};
    return {UniversalPos::NOUN};
}

} // namespace lexiform::train
