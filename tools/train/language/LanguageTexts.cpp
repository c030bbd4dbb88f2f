#include "tools/train/language/LanguageTexts.h"

#include "tools/train/corpora/ConlluReader.h"
#include "tools/train/corpora/NameListReader.h"
#include "tools/train/language/SerbianScript.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;

// Told by their script, so that no model of words is needed.
constexpr std::array<std::string_view, 2> byScript = {"ko", "zh"};
// Bytes of one file of open text that are read: several times what training takes from it.
constexpr std::size_t mostOpenBytes = 8'000'000;

std::vector<fs::path> filesBelow(const fs::path& folder) {
    std::vector<fs::path> files;
    if (!fs::is_directory(folder)) return files;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

bool hasSpacing(const fs::path& file) {
    constexpr std::array<std::string_view, 4> unspaced = {"conll2018", "opencorpora", "empirist", "cess"};
    const std::string name = file.filename().string();
    return std::none_of(unspaced.begin(), unspaced.end(),
                        [&](std::string_view part) { return name.find(part) != std::string::npos; });
}

void addTexts(const Corpus& corpus, bool spaced, std::vector<std::string>& texts) {
    for (const GoldSentence& sentence : corpus)
        texts.push_back(textOf(sentence, spaced));
}

// Adds the treebanks and, where there are none, the name lists with `part` in their names.
std::string addAnnotated(const fs::path& folder, std::string_view part, std::vector<std::string>& texts) {
    for (const fs::path& file : filesBelow(folder)) {
        const std::string name = file.filename().string();
        if (name.find(part) == std::string::npos || !name.ends_with(".conllu") ||
            name.find(".penn") != std::string::npos)
            continue;
        const auto corpus = readConllu(file);
        if (!corpus.succeeded()) return corpus.fault();
        addTexts(corpus.value(), hasSpacing(file), texts);
    }
    if (!texts.empty()) return {};
    for (const fs::path& file : filesBelow(folder / "names")) {
        if (file.filename().string().find(part) == std::string::npos) continue;
        const auto corpus = readNameList(file);
        if (!corpus.succeeded()) return corpus.fault();
        addTexts(corpus.value(), false, texts);
    }
    return {};
}

void addLines(const fs::path& file, std::vector<std::string>& texts) {
    std::ifstream input(file, std::ios::binary);
    std::size_t bytes = 0;
    for (std::string line; bytes < mostOpenBytes && std::getline(input, line);) {
        bytes += line.size();
        if (line.size() > 10) texts.push_back(line);
    }
}

Outcome<std::vector<LanguageTexts>, std::string> textsOf(const fs::path& corpora, std::string_view part) {
    std::vector<std::string> languages;
    for (const auto& entry : fs::directory_iterator(corpora))
        if (entry.is_directory() && entry.path().filename() != "mul")
            languages.push_back(entry.path().filename().string());
    std::sort(languages.begin(), languages.end());
    std::vector<LanguageTexts> all;
    for (const std::string& language : languages) {
        LanguageTexts texts{language, {}, {}};
        if (const std::string fault = addAnnotated(corpora / language, part, texts.annotated); !fault.empty())
            return fault;
        if (!texts.annotated.empty()) all.push_back(std::move(texts));
    }
    return all;
}

// Serbian is written in either script; the corpus has one of them.
void addSerbianCyrillic(LanguageTexts& texts) {
    const std::size_t count = texts.annotated.size();
    for (std::size_t i = 0; i < count; ++i)
        texts.annotated.push_back(serbianCyrillic(texts.annotated[i]));
}

} // namespace

std::string textOf(const GoldSentence& sentence, bool spaced) {
    constexpr std::string_view joinedBefore = ".,;:!?)%»”";
    std::string text;
    bool space = false;
    for (const GoldToken& token : sentence.tokens) {
        const bool joined = token.form.size() <= 3 && joinedBefore.find(token.form) != std::string_view::npos;
        if (space && (spaced || !joined)) text += ' ';
        text += token.form;
        space = spaced ? token.spaceAfter : token.form != "(" && token.form != "«" && token.form != "¿";
    }
    return text;
}

Outcome<std::vector<LanguageTexts>, std::string> trainingTexts(const fs::path& corpora) {
    auto read = textsOf(corpora, "train");
    if (!read.succeeded()) return read;
    std::vector<LanguageTexts> all = std::move(read).value();
    std::erase_if(all, [](const LanguageTexts& texts) {
        return std::find(byScript.begin(), byScript.end(), texts.language) != byScript.end();
    });
    for (LanguageTexts& texts : all) {
        for (const char* name : {"modern.txt", "novels.txt"})
            addLines(corpora / texts.language / "text" / name, texts.open);
        if (texts.language == "sr") addSerbianCyrillic(texts);
    }
    return all;
}

Outcome<std::vector<LanguageTexts>, std::string> developmentTexts(const fs::path& corpora) {
    return textsOf(corpora, "dev");
}

} // namespace lexiform::train
