#include "tools/train/lexicon/LanguageLexicon.h"

#include "tools/train/corpora/ConlluReader.h"
#include "tools/train/lexicon/ClusterText.h"
#include "tools/train/lexicon/DictionaryReaders.h"
#include "tools/train/lexicon/NameLists.h"
#include "tools/train/lexicon/TurkishForms.h"
#include "tools/train/lexicon/readTurkishForms.h"

#include <algorithm>
#include <limits>

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;
using linguistics::WordList;

// Word classes from contexts: enough to be of use, few enough to be learned from the treebanks.
constexpr std::size_t clusterCount = 200;
constexpr int clusterPasses = 6;
// A word seen less often does not show what words stand beside it.
constexpr std::size_t leastSeenInClusters = 12;
constexpr std::size_t mostTokens = 4000000;
// What is like the treebanks counts this many times.
constexpr int repeatsOfTreebanks = 3;

// Names among this many of the commonest words ("of", "Nice") say nothing.
constexpr std::size_t tooCommonForNames = 3000;

// Sentences that stand for a file's name, or hold words that were lost, teach nothing.
bool isSound(const GoldSentence& sentence) {
    return std::none_of(sentence.tokens.begin(), sentence.tokens.end(), [](const GoldToken& token) {
        return token.form == "_" || token.finePos.ends_with(".txt") || token.finePos == "_";
    });
}

// Reads a corpus for its own tags, which are the universal ones where it has those.
ReadFault readSound(const fs::path& file, Corpus& corpus) {
    auto read = readConllu(file);
    if (!read.succeeded()) return read.fault();
    corpus = std::move(read).value();
    std::erase_if(corpus, [](const GoldSentence& sentence) { return !isSound(sentence); });
    for (GoldSentence& sentence : corpus)
        for (GoldToken& token : sentence.tokens)
            if (token.pos) token.finePos = linguistics::nameOf(*token.pos);
    return std::nullopt;
}

/// Gathers the lexicon of one language.
class Gatherer {
public:
    Gatherer(const LanguageSources& sources, const fs::path& corpora)
        : sources_(sources), language_(sources.language), corpora_(corpora),
          lists_(corpora / sources.language / "lexicon") {}

    ReadFault gather() {
        if (ReadFault fault = addTaggedText()) return fault;
        if (ReadFault fault = addFrequentWords()) return fault;
        if (ReadFault fault = addDictionaries()) return fault;
        if (ReadFault fault = addNames()) return fault;
        return addClusters();
    }

    [[nodiscard]] Lexicon lexicon() const { return builder_.build(); }

private:
    // Large texts that are tagged in a way of their own, so that no tagger is trained from them.
    ReadFault addTaggedText() {
        const fs::path file = language_ == "en"   ? corpora_ / "en" / "en_masc-train.penn.conllu"
                              : language_ == "ru" ? corpora_ / "ru" / "ru_opencorpora-train.conllu"
                                                  : fs::path();
        if (file.empty()) return std::nullopt;
        if (ReadFault fault = readSound(file, tagged_)) return fault;
        builder_.addTaggedText(tagged_);
        if (language_ == "ru") addAllForms(tagged_);
        return std::nullopt;
    }

    // A text of many hands and many forms, the nearest thing to a dictionary that the language has.
    void addAllForms(const Corpus& corpus) {
        for (const GoldSentence& sentence : corpus)
            for (const GoldToken& token : sentence.tokens)
                builder_.addCommonWord(token.form);
    }

    ReadFault addDictionaries() {
        const TakeForm take = [&](std::string_view form, char pos) { builder_.addDictionaryForm(form, pos); };
        if (language_ == "en") {
            if (ReadFault fault = readLemmaIndex(lists_ / "en_lemma_index.json", take)) return fault;
            return readInflections(lists_ / "unimorph_eng.tsv", take);
        }
        if (language_ == "de") return readGermanForms(lists_ / "german_form_lemma_tag.tsv", take);
        if (language_ == "pt") return readPortugueseForms(lists_ / "portuguese_form_lemma_tag.tsv", take);
        if (language_ == "tr") return addTurkishForms();
        if (language_ == "it") return addItalianForms(take);
        return addLemmaIndices(take);
    }

    ReadFault addItalianForms(const TakeForm& take) {
        constexpr std::pair<const char*, char> files[] = {{"adj", 'j'}, {"adp", 'a'}, {"adv", 'r'},
                                                          {"aux", 'x'}, {"det", 't'}, {"noun", 'n'},
                                                          {"num", 'u'}, {"pron", 'o'}};
        for (const auto& [name, pos] : files) {
            const fs::path file = lists_ / (std::string("it_lemma_lookup_") + name + ".json");
            if (ReadFault fault = readLemmaLookup(file, pos, take)) return fault;
        }
        return std::nullopt;
    }

    // The dictionary has roots alone, so what is met in texts is analysed by them.
    ReadFault addTurkishForms() {
        TurkishForms forms;
        if (ReadFault fault = readTurkishForms(lists_, forms)) return fault;
        const auto add = [&](const std::string& form) {
            for (const char pos : forms.classesOf(form))
                builder_.addDictionaryForm(form, pos);
        };
        for (const Source& source : sources_.training)
            for (const GoldSentence& sentence : source.corpus)
                for (const GoldToken& token : sentence.tokens)
                    add(linguistics::normalForm(token.form));
        return eachLine(lists_ / frequencyFile(), [&](std::string_view line) {
            add(linguistics::normalForm(partsOf(line, ' ').front()));
        });
    }

    // Lemmas, and irregular forms, by part of speech: some languages have either, some neither.
    ReadFault addLemmaIndices(const TakeForm& take) {
        for (const char* kind : {"_lemma_index.json", "_lemma_exc.json"}) {
            const fs::path file = lists_ / (language_ + kind);
            if (!fs::exists(file)) continue;
            if (ReadFault fault = readLemmaIndex(file, take)) return fault;
        }
        return std::nullopt;
    }

    ReadFault addFrequentWords() {
        std::size_t rank = 0;
        return eachLine(lists_ / frequencyFile(), [&](std::string_view line) {
            const std::string word = linguistics::normalForm(partsOf(line, ' ').front());
            builder_.addCommonWord(word);
            if (rank++ < tooCommonForNames) common_.insert(word);
        });
    }

    [[nodiscard]] std::string frequencyFile() const {
        const std::string code = language_ == "nb" ? "no" : language_ == "zh" ? "zh_cn" : language_;
        return "frequency_" + code + "_50k.txt";
    }

    ReadFault addNames() {
        const std::size_t all = std::numeric_limits<std::size_t>::max();
        if (ReadFault fault =
                addGazetteers(corpora_ / "mul" / "gazetteers", common_, language_ == "en", builder_))
            return fault;
        if (language_ == "en")
            for (const char* file : {"first_names_female.txt", "first_names_male.txt"})
                if (ReadFault fault = addNameList(lists_ / file, WordList::givenNames, all, {}, builder_))
                    return fault;
        if (language_ != "tr") return std::nullopt;
        if (ReadFault fault =
                addNameList(lists_ / "person-names.dict", WordList::givenNames, all, common_, builder_))
            return fault;
        return addNameList(lists_ / "locations-tr.dict", WordList::cityNames, all, common_, builder_);
    }

    ReadFault addClusters() {
        std::size_t room = mostTokens;
        WordClusters clusters(clusterCount, leastSeenInClusters);
        for (int i = 0; i < repeatsOfTreebanks; ++i)
            addTreebanks(clusters);
        for (const fs::path& text : sources_.openTexts) {
            std::size_t added = 0;
            if (room == 0) break;
            if (ReadFault fault = addForClusters(text, room, clusters, added)) return fault;
            room -= std::min(room, added);
        }
        for (const auto& [form, cluster] : clusters.build(clusterPasses))
            builder_.setCluster(form, cluster);
        return std::nullopt;
    }

    void addTreebanks(WordClusters& clusters) const {
        addForClusters(tagged_, clusters);
        for (const Source& source : sources_.training)
            if (source.tagWeight > 0) addForClusters(source.corpus, clusters);
    }

    const LanguageSources& sources_;
    std::string language_;
    fs::path corpora_, lists_;
    LexiconBuilder builder_;
    Corpus tagged_;
    CommonWords common_;
};

} // namespace

Outcome<Lexicon, std::string> lexiconOf(const LanguageSources& sources, const fs::path& corpora) {
    Gatherer gatherer(sources, corpora);
    if (ReadFault fault = gatherer.gather()) return *fault;
    return gatherer.lexicon();
}

} // namespace lexiform::train
