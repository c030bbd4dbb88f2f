#include "tools/train/commands/languages.h"

#include "linguistics/language/LanguageIdentifier.h"
#include "tools/train/commands/reportFault.h"
#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/file/writeFile.h"
#include "tools/train/language/LanguageEvaluation.h"
#include "tools/train/language/trainIdentification.h"

#include <fstream>
#include <iostream>
#include <string>

namespace lexiform::train {

namespace fs = std::filesystem;
using linguistics::LanguageIdentifier;

int trainLanguages(const fs::path& corpora, const fs::path& folder) {
    ModelFileWriter image("mul");
    const auto trained = trainIdentification(corpora, image, std::cerr);
    if (!trained.succeeded()) return reportFault(trained.fault());
    const fs::path file = folder / "languages.lxi";
    if (!writeFile(file, image.bytes())) return reportFault(file.string() + ": it cannot be written");
    std::cout << file.string() << ": " << fs::file_size(file) << " bytes\n";
    return 0;
}

namespace {

// Adds the lines of `file`: a code, a tab, a text.
bool addList(const fs::path& file, LanguageEvaluation& evaluation) {
    std::ifstream input(file, std::ios::binary);
    for (std::string line; std::getline(input, line);)
        if (const std::size_t tab = line.find('\t'); tab != std::string::npos)
            evaluation.add(line.substr(0, tab), line.substr(tab + 1));
    return input.eof();
}

} // namespace

int evaluateLanguages(const fs::path& file, const fs::path& corpora, const std::vector<fs::path>& lists) {
    const auto identifier = LanguageIdentifier::load(file);
    if (!identifier.succeeded()) return reportFault(file.string() + ": " + identifier.fault().reason);
    LanguageEvaluation evaluation(identifier.value());
    if (!corpora.empty()) {
        const auto texts = developmentTexts(corpora);
        if (!texts.succeeded()) return reportFault(texts.fault());
        for (const LanguageTexts& language : texts.value())
            for (const std::string& text : language.annotated)
                evaluation.add(language.language, text);
    }
    for (const fs::path& list : lists)
        if (!addList(list, evaluation)) return reportFault(list.string() + ": it cannot be read");
    evaluation.print(stdout);
    return 0;
}

} // namespace lexiform::train
