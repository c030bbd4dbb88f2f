#include "tools/train/lemmas/LemmaLexicon.h"

#include "tools/train/lemmas/LexiconReader.h"
#include "tools/train/lemmas/SpellingTags.h"

#include <array>
#include <fstream>
#include <utility>

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;
using linguistics::UniversalPos;

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
    reader.readTables("it_lemma_lookup_");
}

// The list has one root for each form; treebanks give it to verbs and nouns only.
void readIndonesian(LexiconReader& reader, const fs::path&) {
    // Pronouns that lean on the word before with their full forms, and words that the list takes apart.
    for (const auto& [form, lemma] :
         {std::pair{"nya", "dia"}, std::pair{"ia", "dia"}, std::pair{"ku", "aku"}, std::pair{"mu", "kamu"}})
        reader.readWord(form, lemma, UniversalPos::PRON);
    for (const auto& [form, lemma] :
         {std::pair{"sebuah", "buah"}, std::pair{"seorang", "orang"}, std::pair{"seekor", "ekor"}})
        reader.readWord(form, lemma, UniversalPos::DET);
    reader.readWord("tapi", "tetapi", UniversalPos::CCONJ);
    reader.readWord("merupakan", "merupakan", UniversalPos::VERB);
    reader.readWord("terjadi", "terjadi", UniversalPos::VERB);
    reader.readTable("id_lemma_lookup.json", {UniversalPos::VERB, UniversalPos::NOUN});
    reader.addIndonesianPassives();
}

void readTurkish(LexiconReader& reader, const fs::path& corpora) {
    reader.readTurkish("master-dictionary.dict", readFrequentWords("tr", corpora));
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
