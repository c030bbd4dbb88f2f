#include "tools/train/lemmas/LexiconReader.h"

#include "tools/train/corpora/Lines.h"
#include "tools/train/lemmas/IndonesianVoices.h"
#include "tools/train/lemmas/JsonPaths.h"
#include "tools/train/lemmas/TurkishRoots.h"

#include <fstream>
#include <iterator>
#include <optional>
#include <unordered_set>

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;
using linguistics::UniversalPos;

// The tags whose words inflect; of the others treebanks show nearly all.
const TagNames jsonTags = {{"adj", UniversalPos::ADJ},   {"adv", UniversalPos::ADV},
                           {"noun", UniversalPos::NOUN}, {"verb", UniversalPos::VERB},
                           {"num", UniversalPos::NUM},   {"aux", UniversalPos::AUX}};

std::optional<UniversalPos> tagBy(const TagNames& names, std::string_view tag) {
    for (const auto& [name, pos] : names)
        if (tag.starts_with(name)) return pos;
    return std::nullopt;
}

std::string contentOf(const fs::path& file) {
    std::ifstream input(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(input), {}};
}

} // namespace

void LexiconReader::readIndex(const std::string& name) {
    forEachJsonString(contentOf(folder_ / name), [&](const auto& names, const std::string& value) {
        if (const auto pos = names.empty() ? std::nullopt : tagBy(jsonTags, names[0]))
            add(value, value, *pos);
    });
}

void LexiconReader::readExceptions(const std::string& name) {
    forEachJsonString(contentOf(folder_ / name), [&](const auto& names, const std::string& value) {
        if (names.size() != 2) return;
        if (const auto pos = tagBy(jsonTags, names[0])) add(names[1], value, *pos);
    });
}

void LexiconReader::readTable(const std::string& name, const std::vector<UniversalPos>& tags) {
    forEachJsonString(contentOf(folder_ / name), [&](const auto& names, const std::string& value) {
        if (names.size() != 1) return;
        for (const UniversalPos pos : tags) {
            add(names[0], value, pos);
            add(value, value, pos);
        }
    });
}

void LexiconReader::readTables(const std::string& stem) {
    for (const auto& [name, pos] : jsonTags)
        readTable(stem + std::string(name) + ".json", {pos});
}

void LexiconReader::readFullForms(const std::string& name, const TagNames& tags) {
    std::ifstream input(folder_ / name, std::ios::binary);
    for (std::string line; std::getline(input, line);) {
        const auto columns = partsOf(line, '\t');
        if (line.starts_with('#') || columns.size() != 3) continue;
        if (const auto pos = tagBy(tags, columns[2])) add(columns[0], columns[1], *pos);
    }
}

void LexiconReader::readParadigms(const std::string& name) {
    std::ifstream input(folder_ / name, std::ios::binary);
    for (std::string line; std::getline(input, line);) {
        const auto columns = partsOf(line, '\t');
        if (columns.size() == 3 && columns[2].starts_with("V;"))
            add(columns[1], columns[0], UniversalPos::VERB);
    }
}

void LexiconReader::readTurkish(const std::string& name, const std::vector<std::string>& words) {
    // Schools of annotation differ on whether a participle or verbal noun is still a verb.
    static const std::vector verbal = {UniversalPos::VERB, UniversalPos::NOUN, UniversalPos::ADV};
    static const std::vector nominal = {UniversalPos::NOUN, UniversalPos::ADJ};
    const std::unordered_set<std::string> used(words.begin(), words.end());
    const std::vector<TurkishRoot> roots = readTurkishRoots(folder_ / name);
    std::unordered_set<std::string> nouns;
    for (const TurkishRoot& root : roots)
        if (!root.isVerb) nouns.insert(root.lemma);
    for (const TurkishRoot& root : roots)
        forEachTurkishForm(root, [&](const std::string& form) {
            if (!used.contains(form)) return;
            // "Toplum" is a word of its own before it is a form of "top".
            const bool isOther = form != root.lemma && nouns.contains(form);
            for (const UniversalPos pos : root.isVerb ? verbal : nominal)
                if (pos == UniversalPos::VERB || !isOther) add(form, root.lemma, pos);
        });
}

void LexiconReader::readSpelling(const std::string& name, Tagging tagging) {
    forEachAffixedForm(folder_ / (name + ".aff"), folder_ / (name + ".dic"), [&](const AffixedForm& form) {
        for (const UniversalPos pos : tagging(form))
            add(form.form, form.word, pos);
    });
}

void LexiconReader::readWord(std::string_view form, std::string_view lemma, UniversalPos pos) {
    add(form, lemma, pos);
    settled_.emplace(form, pos);
}

void LexiconReader::addIndonesianPassives() {
    const std::size_t actives = lines_.size();
    for (std::size_t i = 0; i < actives; ++i) {
        if (lines_[i].pos != UniversalPos::VERB) continue;
        const auto passive = indonesianPassive(lines_[i].form, lines_[i].lemma);
        if (passive) add(*passive, std::string(lines_[i].lemma), UniversalPos::VERB);
    }
}

void LexiconReader::add(std::string_view form, std::string_view lemma, UniversalPos pos) {
    // A phrase is no token, and no lemma is empty.
    if (form.empty() || lemma.empty() || form.find(' ') != std::string_view::npos) return;
    if (settled_.contains({std::string(form), pos})) return;
    if (!lines_.empty() && lines_.back().form == form && lines_.back().lemma == lemma &&
        lines_.back().pos == pos)
        return;
    lines_.push_back({std::string(form), std::string(lemma), pos});
}

} // namespace lexiform::train
