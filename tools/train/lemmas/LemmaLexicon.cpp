#include "tools/train/lemmas/LemmaLexicon.h"

#include "tools/train/corpora/Lines.h"
#include "tools/train/lemmas/AffixDictionary.h"
#include "tools/train/lemmas/JsonPaths.h"
#include "tools/train/lemmas/TurkishParadigms.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <optional>
#include <unordered_set>
#include <utility>

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;
using linguistics::UniversalPos;

using TagNames = std::vector<std::pair<std::string_view, UniversalPos>>;

// The tags whose words inflect; of the others treebanks show nearly all.
const TagNames jsonTags = {{"adj", UniversalPos::ADJ},   {"adv", UniversalPos::ADV},
                           {"noun", UniversalPos::NOUN}, {"verb", UniversalPos::VERB},
                           {"num", UniversalPos::NUM},   {"aux", UniversalPos::AUX}};
const TagNames germanTags = {{"SUB", UniversalPos::NOUN},
                             {"ADJ", UniversalPos::ADJ},
                             {"PA1", UniversalPos::ADJ},
                             {"PA2", UniversalPos::ADJ},
                             {"VER", UniversalPos::VERB}};
const TagNames portugueseTags = {{"VM", UniversalPos::VERB},
                                 {"NC", UniversalPos::NOUN},
                                 {"AQ", UniversalPos::ADJ},
                                 {"AO", UniversalPos::ADJ},
                                 {"RG", UniversalPos::ADV}};

// By the start of the tag.
std::optional<UniversalPos> tagBy(const TagNames& names, std::string_view tag) {
    for (const auto& [name, pos] : names)
        if (tag.starts_with(name)) return pos;
    return std::nullopt;
}

std::string contentOf(const fs::path& file) {
    std::ifstream input(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(input), {}};
}

/// Gathers the lines of one language's lists.
class LexiconReader {
public:
    explicit LexiconReader(fs::path folder) : folder_(std::move(folder)) {}

    /// "verb": ["go"]: lemmas by part of speech.
    void readIndex(const std::string& name) {
        forEachJsonString(contentOf(folder_ / name), [&](const auto& names, const std::string& value) {
            if (const auto pos = names.empty() ? std::nullopt : tagBy(jsonTags, names[0]))
                add(value, value, *pos);
        });
    }

    /// "verb": {"went": ["go"]}.
    void readExceptions(const std::string& name) {
        forEachJsonString(contentOf(folder_ / name), [&](const auto& names, const std::string& value) {
            if (names.size() != 2) return;
            if (const auto pos = tagBy(jsonTags, names[0])) add(names[1], value, *pos);
        });
    }

    /// "went": "go", all of the parts of speech `tags`.
    void readTable(const std::string& name, std::initializer_list<UniversalPos> tags) {
        forEachJsonString(contentOf(folder_ / name), [&](const auto& names, const std::string& value) {
            if (names.size() != 1) return;
            for (const UniversalPos pos : tags) {
                add(names[0], value, pos);
                add(value, value, pos);
            }
        });
    }

    /// Lines of form, lemma and tag.
    void readFullForms(const std::string& name, const TagNames& tags) {
        std::ifstream input(folder_ / name, std::ios::binary);
        for (std::string line; std::getline(input, line);) {
            const auto columns = partsOf(line, '\t');
            if (line.starts_with('#') || columns.size() != 3) continue;
            if (const auto pos = tagBy(tags, columns[2])) add(columns[0], columns[1], *pos);
        }
    }

    /// Lines of lemma, form and features; the lists in use hold verbs.
    void readParadigms(const std::string& name) {
        std::ifstream input(folder_ / name, std::ios::binary);
        for (std::string line; std::getline(input, line);) {
            const auto columns = partsOf(line, '\t');
            if (columns.size() == 3 && columns[2].starts_with("V;"))
                add(columns[1], columns[0], UniversalPos::VERB);
        }
    }

    /// Roots of Turkish, one a line, verbs in the infinitive, with all their forms that are in use.
    void readTurkishRoots(const std::string& name, const std::vector<std::string>& words) {
        const std::unordered_set<std::string> used(words.begin(), words.end());
        std::ifstream input(folder_ / name);
        for (std::string line; std::getline(input, line);) {
            const std::string root = line.substr(0, line.find_first_of(" \t\r"));
            const bool verb = root.ends_with("mak") || root.ends_with("mek");
            const std::string lemma = verb ? root.substr(0, root.size() - 3) : root;
            const auto take = [&](const std::string& form) {
                if (!used.contains(form)) return;
                // Schools of annotation differ on whether a participle or verbal noun is still a verb.
                for (const UniversalPos pos :
                     verb ? std::vector{UniversalPos::VERB, UniversalPos::NOUN, UniversalPos::ADV}
                          : std::vector{UniversalPos::NOUN, UniversalPos::ADJ})
                    add(form, lemma, pos);
            };
            if (verb)
                forEachTurkishVerbForm(lemma, take);
            else
                forEachTurkishNounForm(lemma, take);
        }
    }

    /// A word that no list has.
    void readWord(std::string_view form, std::string_view lemma, UniversalPos pos) { add(form, lemma, pos); }

    using Tagging = std::vector<UniversalPos> (*)(const AffixedForm&);

    void readSpelling(const std::string& name, Tagging tagging) {
        forEachAffixedForm(folder_ / (name + ".aff"), folder_ / (name + ".dic"),
                           [&](const AffixedForm& form) {
                               for (const UniversalPos pos : tagging(form))
                                   add(form.form, form.word, pos);
                           });
    }

    [[nodiscard]] std::vector<LexiconLemma> lines() && { return std::move(lines_); }

private:
    void add(std::string_view form, std::string_view lemma, UniversalPos pos) {
        // A phrase is no token, and no lemma is empty.
        if (form.empty() || lemma.empty() || form.find(' ') != std::string_view::npos) return;
        if (!lines_.empty() && lines_.back().form == form && lines_.back().lemma == lemma &&
            lines_.back().pos == pos)
            return;
        lines_.push_back({std::string(form), std::string(lemma), pos});
    }

    fs::path folder_;
    std::vector<LexiconLemma> lines_;
};

bool endsWithAny(std::string_view word, std::initializer_list<std::string_view> endings) {
    return std::any_of(endings.begin(), endings.end(), [&](auto ending) { return word.ends_with(ending); });
}

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

void readEnglish(LexiconReader& reader, const fs::path&) {
    reader.readExceptions("en_lemma_exc.json");
    reader.readIndex("en_lemma_index.json");
    reader.readParadigms("unimorph_eng.tsv");
}

void readFrench(LexiconReader& reader, const fs::path&) {
    reader.readIndex("fr_lemma_index.json");
    reader.readSpelling("hunspell_fr", frenchTags);
}

void readSpanish(LexiconReader& reader, const fs::path&) {
    reader.readIndex("es_lemma_index.json");
    reader.readSpelling("hunspell_es", spanishTags);
}

void readCatalan(LexiconReader& reader, const fs::path&) {
    reader.readExceptions("ca_lemma_exc.json");
    reader.readIndex("ca_lemma_index.json");
}

void readDutch(LexiconReader& reader, const fs::path&) {
    reader.readExceptions("nl_lemma_exc.json");
    reader.readIndex("nl_lemma_index.json");
}

void readItalian(LexiconReader& reader, const fs::path&) {
    for (const auto& [name, pos] : jsonTags)
        reader.readTable("it_lemma_lookup_" + std::string(name) + ".json", {pos});
}

void readIndonesian(LexiconReader& reader, const fs::path&) {
    reader.readTable("id_lemma_lookup.json",
                     {UniversalPos::VERB, UniversalPos::NOUN, UniversalPos::ADJ, UniversalPos::ADV});
    // Pronouns that lean on the word before, and their full forms.
    for (const auto& [form, lemma] :
         {std::pair{"nya", "dia"}, std::pair{"ia", "dia"}, std::pair{"ku", "aku"}, std::pair{"mu", "kamu"}})
        reader.readWord(form, lemma, UniversalPos::PRON);
}

void readTurkish(LexiconReader& reader, const fs::path& corpora) {
    reader.readTurkishRoots("master-dictionary.dict", readFrequentWords("tr", corpora));
}

void readGerman(LexiconReader& reader, const fs::path&) {
    reader.readFullForms("german_form_lemma_tag.tsv", germanTags);
}

void readPortuguese(LexiconReader& reader, const fs::path&) {
    reader.readFullForms("portuguese_form_lemma_tag.tsv", portugueseTags);
}

void readRussian(LexiconReader& reader, const fs::path&) {
    reader.readSpelling("hunspell_ru", russianTags);
}

struct LanguageReader {
    std::string_view language;
    void (*read)(LexiconReader&, const fs::path& corpora);
};

constexpr std::array readers = {
    LanguageReader{"ca", readCatalan},    LanguageReader{"de", readGerman},
    LanguageReader{"en", readEnglish},    LanguageReader{"es", readSpanish},
    LanguageReader{"fr", readFrench},     LanguageReader{"id", readIndonesian},
    LanguageReader{"it", readItalian},    LanguageReader{"nl", readDutch},
    LanguageReader{"pt", readPortuguese}, LanguageReader{"ru", readRussian},
    LanguageReader{"tr", readTurkish},
};

} // namespace

std::vector<LexiconLemma> readLemmaLexicon(std::string_view language, const fs::path& corpora) {
    LexiconReader reader(corpora / language / "lexicon");
    for (const auto& [code, read] : readers)
        if (code == language) read(reader, corpora);
    return std::move(reader).lines();
}

std::vector<std::string> readFrequentWords(std::string_view language, const fs::path& corpora) {
    // The list of Norwegian goes by the code of both its written forms.
    const std::string code(language == "nb" ? "no" : language);
    std::ifstream input(corpora / language / "lexicon" / ("frequency_" + code + "_50k.txt"));
    std::vector<std::string> words;
    for (std::string line; std::getline(input, line);)
        words.push_back(line.substr(0, line.find(' ')));
    return words;
}

} // namespace lexiform::train
