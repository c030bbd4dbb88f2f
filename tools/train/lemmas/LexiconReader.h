#pragma once

#include "linguistics/text/UniversalPos.h"
#include "tools/train/lemmas/AffixDictionary.h"
#include "tools/train/lemmas/LemmaLexicon.h"

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lexiform::train {

/// Parts of speech by the start of a list's own tag.
using TagNames = std::vector<std::pair<std::string_view, linguistics::UniversalPos>>;

/// Gathers the lines of one language's lists of words, each in the format that it has. A list that is missing
/// has no lines.
class LexiconReader {
public:
    /// For lists in `folder`.
    explicit LexiconReader(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// JSON, "verb": ["go"]: lemmas by part of speech.
    void readIndex(const std::string& name);
    /// JSON, "verb": {"went": ["go"]}.
    void readExceptions(const std::string& name);
    /// JSON, "went": "go", all of the parts of speech `tags`.
    void readTable(const std::string& name, const std::vector<linguistics::UniversalPos>& tags);
    /// A `readTable` for each part of speech, in the file `stem` + its name + ".json".
    void readTables(const std::string& stem);
    /// Lines of form, lemma and tag.
    void readFullForms(const std::string& name, const TagNames& tags);
    /// Lines of lemma, form and features; the lists in use hold verbs.
    void readParadigms(const std::string& name);
    /// A dictionary of Turkish roots, with all their forms that are among `words`.
    void readTurkish(const std::string& name, const std::vector<std::string>& words);

    /// Parts of speech that a form of a spelling dictionary may have.
    using Tagging = std::vector<linguistics::UniversalPos> (*)(const AffixedForm&);
    /// The spelling dictionary of the files `name`.aff and `name`.dic.
    void readSpelling(const std::string& name, Tagging tagging);

    /// A word that no list has, or that the lists read after it have wrong: they cannot add another lemma.
    void readWord(std::string_view form, std::string_view lemma, linguistics::UniversalPos pos);
    /// The passives of the Indonesian verbs read so far.
    void addIndonesianPassives();

    [[nodiscard]] std::vector<LexiconLemma> lines() && { return std::move(lines_); }

private:
    void add(std::string_view form, std::string_view lemma, linguistics::UniversalPos pos);

    std::filesystem::path folder_;
    std::vector<LexiconLemma> lines_;
    std::set<std::pair<std::string, linguistics::UniversalPos>> settled_; ///< by `readWord`
};

} // namespace lexiform::train
