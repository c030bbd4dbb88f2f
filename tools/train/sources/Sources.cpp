#include "tools/train/sources/Sources.h"

#include "tools/train/corpora/ConlluReader.h"
#include "tools/train/corpora/NameListReader.h"
#include "tools/train/sources/Cleaning.h"
#include "tools/train/sources/languages/Recipes.h"

#include <array>
#include <optional>
#include <utility>

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;
using Fault = std::optional<std::string>;

struct LanguageRecipe {
    std::string_view language;
    Recipe (*recipe)();
};

constexpr std::array languageRecipes = {
    LanguageRecipe{"ca", recipes::catalan},    LanguageRecipe{"da", recipes::danish},
    LanguageRecipe{"de", recipes::german},     LanguageRecipe{"en", recipes::english},
    LanguageRecipe{"es", recipes::spanish},    LanguageRecipe{"fi", recipes::finnish},
    LanguageRecipe{"fr", recipes::french},     LanguageRecipe{"id", recipes::indonesian},
    LanguageRecipe{"it", recipes::italian},    LanguageRecipe{"ko", recipes::korean},
    LanguageRecipe{"nb", recipes::norwegian},  LanguageRecipe{"nl", recipes::dutch},
    LanguageRecipe{"pt", recipes::portuguese}, LanguageRecipe{"ro", recipes::romanian},
    LanguageRecipe{"ru", recipes::russian},    LanguageRecipe{"sv", recipes::swedish},
    LanguageRecipe{"tr", recipes::turkish},    LanguageRecipe{"vi", recipes::vietnamese},
    LanguageRecipe{"zh", recipes::chinese},
};

// "names/wikigold.tsv" is named "wikigold".
std::string nameOf(const fs::path& file) {
    return file.stem().string();
}

Outcome<Corpus, std::string> read(const fs::path& file) {
    return file.extension() == ".tsv" ? readNameList(file) : readConllu(file);
}

/// Reads the files of one recipe in their order.
class RecipeReader {
public:
    RecipeReader(const fs::path& folder, LanguageSources& sources) : folder_(folder), sources_(sources) {}

    Fault readDevelopment(const DevelopmentFile& file) {
        auto corpus = read(folder_ / file.file);
        if (!corpus.succeeded()) return corpus.fault();
        Source source{nameOf(file.file), std::move(corpus).value()};
        for (const Preparation& prepare : file.preparations)
            prepare(source.corpus);
        for (const GoldSentence& sentence : source.corpus)
            development_.remember(sentence);
        sources_.development.push_back(std::move(source));
        return std::nullopt;
    }

    Fault readTraining(const FileRecipe& recipe) {
        auto corpus = read(folder_ / recipe.file);
        if (!corpus.succeeded()) return corpus.fault();
        Source source{nameOf(recipe.file), prepared(std::move(corpus).value(), recipe),
                      recipe.tagWeight,    recipe.lemmaWeight,
                      recipe.nameWeight,   recipe.hasSpacing};
        std::erase_if(source.corpus, [&](const auto& sentence) { return development_.knows(sentence); });
        Source repeated = withoutRepeated(source);
        sources_.training.push_back(std::move(source));
        if (!repeated.corpus.empty()) sources_.training.push_back(std::move(repeated));
        return std::nullopt;
    }

private:
    static Corpus prepared(Corpus corpus, const FileRecipe& recipe) {
        for (const Preparation& prepare : recipe.preparations)
            prepare(corpus);
        clean(corpus, recipe.tagWeight > 0);
        for (GoldSentence& sentence : corpus)
            apply(recipe.rules, sentence);
        return corpus;
    }

    // Takes the sentences out of `source` that an earlier one has. A repeated sentence with names teaches
    // these alone, in a source that it comes back in.
    Source withoutRepeated(Source& source) {
        Source names{source.name + " (names)", {}, 0, 0, source.nameWeight};
        SentenceMemory& memory = source.tagWeight > 0 ? tagged_ : named_;
        Corpus kept;
        for (GoldSentence& sentence : source.corpus) {
            if (memory.remember(sentence))
                kept.push_back(std::move(sentence));
            else if (source.tagWeight > 0 && source.nameWeight > 0 && named_.remember(sentence))
                names.corpus.push_back(std::move(sentence));
        }
        source.corpus = std::move(kept);
        return names;
    }

    fs::path folder_;
    LanguageSources& sources_;
    SentenceMemory development_, tagged_, named_;
};

} // namespace

std::vector<std::string> sourceLanguages() {
    std::vector<std::string> languages;
    languages.reserve(std::size(languageRecipes));
    for (const LanguageRecipe& recipe : languageRecipes)
        languages.emplace_back(recipe.language);
    return languages;
}

Outcome<LanguageSources, std::string> sourcesBy(const Recipe& recipe, std::string_view language,
                                                const fs::path& folder) {
    LanguageSources sources;
    sources.language = language;
    RecipeReader reader(folder, sources);
    for (const DevelopmentFile& file : recipe.development)
        if (Fault fault = reader.readDevelopment(file)) return *fault;
    for (const FileRecipe& file : recipe.training)
        if (Fault fault = reader.readTraining(file)) return *fault;
    for (const std::string& text : recipe.openTexts)
        sources.openTexts.push_back(folder / text);
    return sources;
}

Outcome<LanguageSources, std::string> sourcesOf(std::string_view language, const fs::path& corpora) {
    for (const LanguageRecipe& one : languageRecipes)
        if (one.language == language) return sourcesBy(one.recipe(), language, corpora / language);
    return "no corpora are known for the language " + std::string(language);
}

} // namespace lexiform::train
