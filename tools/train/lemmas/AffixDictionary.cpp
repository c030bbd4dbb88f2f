#include "tools/train/lemmas/AffixDictionary.h"

#include "linguistics/text/Utf8.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace lexiform::train {

namespace {

using linguistics::codePointAt;

/// One ending: words that meet `condition` drop `strip` and take `add`.
struct Ending {
    std::string strip, add, condition;
};

enum class FlagKind { byte, pair, character };

/// What an affix file says of endings.
struct Affixes {
    FlagKind flags = FlagKind::byte;
    std::map<std::string, std::vector<Ending>, std::less<>> endings;
};

Affixes readAffixes(const std::filesystem::path& file) {
    Affixes affixes;
    std::ifstream input(file);
    for (std::string line; std::getline(input, line);) {
        std::istringstream fields(line);
        std::string kind, flag, strip, add, condition;
        fields >> kind >> flag >> strip >> add >> condition;
        if (kind == "FLAG") affixes.flags = flag == "long" ? FlagKind::pair : FlagKind::character;
        // The line that opens a flag has a count where others have what to add.
        if (kind != "SFX" || condition.empty()) continue;
        add.resize(std::min(add.find('/'), add.size()));
        affixes.endings[flag].push_back({strip == "0" ? "" : strip, add == "0" ? "" : add, condition});
    }
    return affixes;
}

std::size_t lengthOfCharacter(std::string_view text, std::size_t at) {
    return codePointAt(text, at).length;
}

/// The parts of a condition such as "[^aeiou]y": each a character or a set of them.
std::vector<std::string_view> partsOfCondition(std::string_view condition) {
    std::vector<std::string_view> parts;
    for (std::size_t at = 0; at < condition.size();) {
        const std::size_t close = condition.find(']', at);
        const bool set = condition[at] == '[' && close != std::string_view::npos;
        const std::size_t length = set ? close + 1 - at : lengthOfCharacter(condition, at);
        parts.push_back(condition.substr(at, length));
        at += length;
    }
    return parts;
}

bool holds(std::string_view part, std::string_view character) {
    if (part == ".") return true;
    if (part.front() != '[') return part == character;
    const bool negated = part.size() > 2 && part[1] == '^';
    const std::string_view set = part.substr(negated ? 2 : 1, part.size() - (negated ? 3 : 2));
    return (set.find(character) != std::string_view::npos) != negated;
}

bool meets(std::string_view word, std::string_view condition) {
    if (condition == ".") return true;
    std::vector<std::string_view> characters;
    for (std::size_t at = 0; at < word.size();) {
        characters.push_back(word.substr(at, lengthOfCharacter(word, at)));
        at += characters.back().size();
    }
    const std::vector<std::string_view> parts = partsOfCondition(condition);
    if (parts.size() > characters.size()) return false;
    const std::size_t start = characters.size() - parts.size();
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (!holds(parts[i], characters[start + i])) return false;
    return true;
}

std::vector<std::string_view> flagsOf(std::string_view text, FlagKind kind) {
    std::vector<std::string_view> flags;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = kind == FlagKind::pair   ? 2
                                   : kind == FlagKind::byte ? 1
                                                            : lengthOfCharacter(text, at);
        flags.push_back(text.substr(at, length));
        at += flags.back().size();
    }
    return flags;
}

using FormVisitor = std::function<void(const AffixedForm&)>;

void tellForms(std::string_view word, std::string_view flag, const std::vector<Ending>& endings,
               const FormVisitor& visitor) {
    for (const Ending& ending : endings) {
        if (!word.ends_with(ending.strip) || !meets(word, ending.condition)) continue;
        const std::string form = std::string(word.substr(0, word.size() - ending.strip.size())) + ending.add;
        visitor({form, word, flag});
    }
}

} // namespace

void forEachAffixedForm(const std::filesystem::path& affixFile, const std::filesystem::path& words,
                        const std::function<void(const AffixedForm&)>& visitor) {
    const Affixes affixes = readAffixes(affixFile);
    std::ifstream input(words);
    for (std::string line; std::getline(input, line);) {
        const std::string_view entry = std::string_view(line).substr(0, line.find_first_of("\t \r"));
        const std::size_t slash = entry.find('/');
        const std::string_view word = entry.substr(0, slash);
        visitor({word, word, {}});
        if (slash == std::string_view::npos) continue;
        for (const std::string_view flag : flagsOf(entry.substr(slash + 1), affixes.flags)) {
            const auto found = affixes.endings.find(flag);
            if (found != affixes.endings.end()) tellForms(word, flag, found->second, visitor);
        }
    }
}

} // namespace lexiform::train
