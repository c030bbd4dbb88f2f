#include "tools/train/lemmas/TurkishRoots.h"

#include "tools/train/lemmas/TurkishParadigms.h"

#include <array>
#include <fstream>
#include <string_view>

namespace lexiform::train {

namespace {

/// A back vowel and the front one that answers it.
struct VowelPair {
    std::string_view back, front;
};

constexpr std::array backVowels = {VowelPair{"a", "e"}, VowelPair{"ı", "i"}, VowelPair{"o", "ö"},
                                   VowelPair{"u", "ü"}};

struct LastVowel {
    std::size_t at = std::string_view::npos;
    VowelPair pair{};
};

LastVowel lastBackVowelOf(std::string_view word) {
    LastVowel last;
    for (const VowelPair& pair : backVowels)
        if (const std::size_t at = word.rfind(pair.back);
            at != std::string_view::npos && (last.at == std::string_view::npos || at > last.at))
            last = {at, pair};
    return last;
}

// The stem of "kısım" is "kısm", that of "resim" "resm".
std::string withoutLastVowel(std::string word) {
    std::size_t last = std::string::npos, length = 0;
    for (const std::string_view vowel : {"a", "e", "ı", "i", "o", "ö", "u", "ü"})
        if (const std::size_t at = word.rfind(vowel);
            at != std::string::npos && (last == std::string::npos || at > last)) {
            last = at;
            length = vowel.size();
        }
    return last == std::string::npos ? word : word.erase(last, length);
}

// As if the last vowel were its front one, which then goes back.
void tellFrontForms(const std::string& root, const std::function<void(const std::string&)>& visitor) {
    const LastVowel vowel = lastBackVowelOf(root);
    if (vowel.at == std::string_view::npos) return;
    std::string fronted = root;
    fronted.replace(vowel.at, vowel.pair.back.size(), vowel.pair.front);
    forEachTurkishNounForm(fronted, [&](std::string form) {
        visitor(form.replace(vowel.at, vowel.pair.front.size(), vowel.pair.back));
    });
}

} // namespace

std::vector<TurkishRoot> readTurkishRoots(const std::filesystem::path& file) {
    std::vector<TurkishRoot> roots;
    std::ifstream input(file);
    for (std::string line; std::getline(input, line);) {
        TurkishRoot root{line.substr(0, line.find_first_of(" \t\r"))};
        root.isVerb = (root.lemma.ends_with("mak") || root.lemma.ends_with("mek")) &&
                      line.find("P:Noun") == std::string::npos;
        if (root.isVerb) root.lemma.resize(root.lemma.size() - 3);
        root.dropsVowel = line.find("LastVowelDrop") != std::string::npos;
        root.takesFrontVowels = line.find("InverseHarmony") != std::string::npos;
        roots.push_back(std::move(root));
    }
    return roots;
}

void forEachTurkishForm(const TurkishRoot& root, const std::function<void(const std::string&)>& visitor) {
    if (root.isVerb) return forEachTurkishVerbForm(root.lemma, visitor);
    forEachTurkishNounForm(root.lemma, visitor);
    if (root.dropsVowel) forEachTurkishNounForm(withoutLastVowel(root.lemma), visitor);
    if (root.takesFrontVowels) tellFrontForms(root.lemma, visitor);
}

} // namespace lexiform::train
