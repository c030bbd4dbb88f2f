#include "tools/train/EnglishSources.h"

#include "linguistics/Tokeniser.h"
#include "tools/train/ConlluReader.h"
#include "tools/train/Lines.h"
#include "tools/train/NameListReader.h"
#include "tools/train/WordClusters.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string_view>

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;
using linguistics::WordList;

// Word classes from contexts: enough to be of use, few enough to be learned from the treebanks.
constexpr std::size_t clusterCount = 200;
constexpr std::size_t leastSeenForCluster = 40;
constexpr int clusterPasses = 6;
// Novels are most of the text; what is like the treebanks counts this many times.
constexpr int repeatsOfTreebanks = 3;

// Family names past this rank are seldom met and often ordinary words.
constexpr std::size_t mostFamilyNames = 15000;
// City names among this many of the commonest words ("of", "Nice") say nothing.
constexpr std::size_t tooCommonForCities = 3000;
constexpr std::size_t shortestCity = 4;

using Fault = std::optional<std::string>;

Fault eachLine(const fs::path& file, const std::function<void(std::string_view)>& take) {
    std::ifstream input(file, std::ios::binary);
    if (!input) return file.string() + ": it cannot be opened";
    for (std::string line; std::getline(input, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!line.empty() && line[0] != '#') take(line);
    }
    return std::nullopt;
}

// Sentences that stand for a file's name, or hold words that were lost, teach nothing.
bool isSound(const GoldSentence& sentence) {
    return std::none_of(sentence.tokens.begin(), sentence.tokens.end(), [](const GoldToken& token) {
        return token.form == "_" || token.finePos.ends_with(".txt") || token.finePos == "_";
    });
}

Outcome<Corpus, std::string> readSound(const fs::path& file) {
    auto read = readConllu(file);
    if (!read.succeeded()) return read.fault();
    Corpus corpus = std::move(read).value();
    std::erase_if(corpus, [](const GoldSentence& sentence) { return !isSound(sentence); });
    return corpus;
}

// The lemma index is an object of lists of words; no word in it holds a quote.
Fault addLemmaIndex(const fs::path& file, LexiconBuilder& lexicon) {
    std::ifstream input(file, std::ios::binary);
    if (!input) return file.string() + ": it cannot be opened";
    const std::string text{std::istreambuf_iterator<char>(input), {}};
    const auto parts = partsOf(text, '"');
    char pos = '?';
    for (std::size_t i = 1; i + 1 < parts.size(); i += 2) {
        if (parts[i + 1].starts_with(":"))
            pos = parts[i] == "adj" ? 'j' : parts[i] == "adv" ? 'r' : parts[i].front();
        else
            lexicon.addDictionaryForm(parts[i], pos);
    }
    return std::nullopt;
}

Fault addInflections(const fs::path& file, LexiconBuilder& lexicon) {
    return eachLine(file, [&](std::string_view line) {
        const auto columns = partsOf(line, '\t');
        if (columns.size() < 3 || columns[2].empty()) return;
        const std::string_view tags = columns[2];
        if (tags.find("PTCP;PST") != std::string_view::npos)
            lexicon.addDictionaryForm(columns[1], 'p');
        else if (tags.find("PTCP;PRS") != std::string_view::npos)
            lexicon.addDictionaryForm(columns[1], 'g');
        else if (tags.find("PST") != std::string_view::npos)
            lexicon.addDictionaryForm(columns[1], 'd');
        else if (tags[0] == 'N')
            lexicon.addDictionaryForm(columns[1], 's');
        else if (tags.starts_with("V;PRS;3") || tags.find("3;SG") != std::string_view::npos)
            lexicon.addDictionaryForm(columns[1], 'z');
    });
}

Fault addFrequentWords(const fs::path& file, LexiconBuilder& lexicon, std::vector<std::string>& commonest) {
    return eachLine(file, [&](std::string_view line) {
        const std::string_view word = partsOf(line, ' ').front();
        lexicon.addCommonWord(word);
        if (commonest.size() < tooCommonForCities) commonest.emplace_back(word);
    });
}

Fault addGivenNames(const fs::path& file, LexiconBuilder& lexicon) {
    return eachLine(file, [&](std::string_view line) {
        const std::string_view name = partsOf(line, ' ').front();
        if (name.size() > 1) lexicon.addToList(name, WordList::givenNames);
    });
}

Fault addFamilyNames(const fs::path& file, LexiconBuilder& lexicon) {
    std::size_t rank = 0;
    return eachLine(file, [&](std::string_view line) {
        if (++rank <= mostFamilyNames) lexicon.addToList(partsOf(line, ' ').front(), WordList::familyNames);
    });
}

Fault addPlaces(const fs::path& file, const std::vector<std::string>& commonest, LexiconBuilder& lexicon) {
    return eachLine(file, [&](std::string_view line) {
        const auto columns = partsOf(line, ',');
        if (columns.size() < 3 || columns[0] == "name") return;
        const std::string city = linguistics::normalForm(columns[0]);
        const bool common = std::binary_search(commonest.begin(), commonest.end(), city);
        if (city.size() >= shortestCity && !common && city.find(' ') == std::string::npos)
            lexicon.addToList(city, WordList::cityNames);
        for (const std::string_view country : {columns[1], columns[2]})
            if (country.size() >= shortestCity && country.find(' ') == std::string_view::npos &&
                country.front() != '"')
                lexicon.addToList(country, WordList::countryNames);
    });
}

Fault fillLexicon(const fs::path& folder, LexiconBuilder& lexicon) {
    const fs::path lists = folder / "en" / "lexicon";
    const fs::path places = folder / "mul" / "gazetteers";
    std::vector<std::string> commonest;
    if (Fault fault = addLemmaIndex(lists / "en_lemma_index.json", lexicon)) return fault;
    if (Fault fault = addInflections(lists / "unimorph_eng.tsv", lexicon)) return fault;
    if (Fault fault = addFrequentWords(lists / "frequency_en_50k.txt", lexicon, commonest)) return fault;
    std::sort(commonest.begin(), commonest.end());
    for (const char* file : {"first_names_female.txt", "first_names_male.txt"})
        if (Fault fault = addGivenNames(lists / file, lexicon)) return fault;
    if (Fault fault = addFamilyNames(places / "dist.all.last", lexicon)) return fault;
    return addPlaces(places / "world-cities.csv", commonest, lexicon);
}

bool isWhollyTagged(const GoldSentence& sentence) {
    return std::all_of(sentence.tokens.begin(), sentence.tokens.end(),
                       [](const GoldToken& token) { return token.pos.has_value(); });
}

Fault addTagged(Sources& sources, const fs::path& file, float weight) {
    auto read = readConllu(file);
    if (!read.succeeded()) return read.fault();
    Corpus corpus = std::move(read).value();
    std::erase_if(corpus, [](const GoldSentence& sentence) { return !isWhollyTagged(sentence); });
    sources.tagged.push_back({std::move(corpus), weight});
    return std::nullopt;
}

Fault addNames(Sources& sources, const fs::path& file, float weight) {
    auto corpus = readNameList(file);
    if (!corpus.succeeded()) return corpus.fault();
    sources.names.push_back({std::move(corpus).value(), weight});
    return std::nullopt;
}

Fault fillCorpora(const fs::path& folder, Sources& sources) {
    if (Fault fault = addTagged(sources, folder / "en_ewt-train.conllu", 1)) return fault;
    if (Fault fault = addTagged(sources, folder / "en_gum-train.conllu", 1)) return fault;
    sources.names.push_back(sources.tagged.back());
    if (Fault fault = addNames(sources, folder / "names" / "wikigold.tsv", 1)) return fault;
    if (Fault fault = addNames(sources, folder / "names" / "wnut17-train.tsv", 1)) return fault;
    return addNames(sources, folder / "names" / "btc-tweets.tsv", 1);
}

void addForClusters(const Corpus& corpus, WordClusters& clusters) {
    for (const GoldSentence& sentence : corpus) {
        for (const GoldToken& token : sentence.tokens)
            clusters.add(linguistics::normalForm(token.form));
        clusters.add("");
    }
}

Fault addForClusters(const fs::path& file, WordClusters& clusters) {
    linguistics::Tokeniser tokeniser;
    std::vector<linguistics::Token> tokens;
    return eachLine(file, [&](std::string_view line) {
        tokens.clear();
        tokeniser.tokenise(line, 0, tokens);
        for (const linguistics::Token& token : tokens)
            if (token.kind != linguistics::TokenKind::whitespace)
                clusters.add(linguistics::normalForm(substring(line, token.range)));
        clusters.add("");
    });
}

Fault addClusters(const fs::path& folder, const std::vector<const Corpus*>& treebanks,
                  LexiconBuilder& lexicon) {
    WordClusters clusters(clusterCount, leastSeenForCluster);
    for (int i = 0; i < repeatsOfTreebanks; ++i)
        for (const Corpus* corpus : treebanks)
            addForClusters(*corpus, clusters);
    if (Fault fault = addForClusters(folder / "text" / "novels.txt", clusters)) return fault;
    for (const auto& [form, cluster] : clusters.build(clusterPasses))
        lexicon.setCluster(form, cluster);
    return std::nullopt;
}

} // namespace

Outcome<Sources, std::string> englishSources(const std::filesystem::path& folder) {
    const fs::path english = folder / "en";
    Sources sources;
    LexiconBuilder lexicon;
    const auto penn = readSound(english / "en_masc-train.penn.conllu");
    if (!penn.succeeded()) return penn.fault();
    lexicon.addTaggedText(penn.value());
    if (Fault fault = fillLexicon(folder, lexicon)) return *fault;
    if (Fault fault = fillCorpora(english, sources)) return *fault;
    std::vector<const Corpus*> treebanks = {&penn.value()};
    for (const WeightedCorpus& corpus : sources.tagged)
        treebanks.push_back(&corpus.corpus);
    if (Fault fault = addClusters(english, treebanks, lexicon)) return *fault;
    sources.lexicon = lexicon.build();
    sources.transitionClasses = LexiconBuilder::classCount();
    return sources;
}

} // namespace lexiform::train
