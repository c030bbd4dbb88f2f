#include "tools/train/commands/evaluateModel.h"

#include "linguistics/Engine.h"
#include "linguistics/model/Model.h"
#include "tools/train/commands/reportFault.h"
#include "tools/train/corpora/ConlluReader.h"
#include "tools/train/corpora/NameListReader.h"
#include "tools/train/evaluation/Confusions.h"
#include "tools/train/evaluation/Evaluation.h"
#include "tools/train/evaluation/GoldText.h"
#include "tools/train/sources/Sources.h"

#include <cstdio>
#include <memory>
#include <string>

namespace lexiform::train {

namespace {

using namespace linguistics;
namespace fs = std::filesystem;

void print(const char* what, const SpanCount& count) {
    if (count.gold > 0) std::printf("  %s %.2f", what, count.f1());
}

void printFigures(const std::string& name, const Model& model, const Engine& engine, const Corpus& gold) {
    std::printf("%s\n  gold tokens:", name.c_str());
    const GoldTokenFigures tokens = evaluateTokens(model, gold);
    print("pos", tokens.pos);
    print("names", tokens.names);
    if (tellsSpaces(gold)) {
        const RawTextFigures text = evaluateText(engine, gold);
        std::printf("\n  raw text:   ");
        print("tokens", text.tokens);
        print("sentences", text.sentences);
        print("pos", text.pos);
        print("class", text.lexicalClass);
        print("lemmas", text.lemmas);
        print("names", text.names);
    }
    std::printf("\n");
}

void printConfusions(const Model& model, const Corpus& gold, std::size_t most) {
    for (const Confusion& confusion : confusionsOf(model, gold, most))
        std::printf("  %5zu %s: %s, not %s\n", confusion.count, confusion.form.c_str(),
                    std::string(nameOf(confusion.gold)).c_str(),
                    std::string(nameOf(confusion.system)).c_str());
    if (model.lemmas() == nullptr) return;
    for (const LemmaConfusion& confusion : lemmaConfusionsOf(model, *model.lemmas(), gold, most))
        std::printf("  %5zu %s (%s): lemma %s, not %s\n", confusion.count, confusion.form.c_str(),
                    std::string(nameOf(confusion.pos)).c_str(), confusion.gold.c_str(),
                    confusion.system.c_str());
}

Outcome<Corpus, std::string> readAnnotated(const fs::path& file) {
    return file.extension() == ".tsv" ? readNameList(file) : readConllu(file);
}

} // namespace

int evaluateModel(const fs::path& file, const fs::path& corpora, const std::vector<fs::path>& texts,
                  std::size_t confusions) {
    const auto model = Model::load(file);
    if (!model.succeeded()) return reportFault(file.string() + ": " + model.fault().reason);
    const Engine engine(std::make_shared<const ModelStore>(std::vector<fs::path>{file.parent_path()}));
    const auto show = [&](const std::string& name, const Corpus& gold) {
        printFigures(name, *model.value(), engine, gold);
        printConfusions(*model.value(), gold, confusions);
    };
    if (!corpora.empty()) {
        const auto sources = sourcesOf(model.value()->language(), corpora);
        if (!sources.succeeded()) return reportFault(sources.fault());
        for (const Source& source : sources.value().development)
            show(source.name, source.corpus);
    }
    for (const fs::path& text : texts) {
        const auto gold = readAnnotated(text);
        if (!gold.succeeded()) return reportFault(gold.fault());
        show(text.filename().string(), gold.value());
    }
    return 0;
}

} // namespace lexiform::train
