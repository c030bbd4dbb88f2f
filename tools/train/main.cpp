// Trains the language models from annotated corpora, and measures them.

#include "linguistics/ModelStore.h"
#include "tools/train/ConlluReader.h"
#include "tools/train/EnglishSources.h"
#include "tools/train/Evaluation.h"
#include "tools/train/ModelTrainer.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace lexiform;
using namespace lexiform::linguistics;
using namespace lexiform::train;
namespace fs = std::filesystem;

int fail(const std::string& reason) {
    std::cerr << "lexiform-train: " << reason << '\n';
    return 1;
}

bool write(const fs::path& file, const std::vector<std::byte>& bytes) {
    std::ofstream output(file, std::ios::binary);
    output.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return output.flush().good();
}

int trainModels(const std::vector<std::string>& languages, const fs::path& corpora, const fs::path& folder) {
    for (const std::string& language : languages) {
        if (language != "en") return fail("no corpora are known for the language " + language);
        const auto sources = englishSources(corpora);
        if (!sources.succeeded()) return fail(sources.fault());
        const auto bytes = trainModel(language, sources.value(), std::cerr);
        const fs::path file = folder / (language + ".lxm");
        if (!write(file, bytes)) return fail(file.string() + ": it cannot be written");
        std::cout << file.string() << ": " << bytes.size() << " bytes\n";
    }
    return 0;
}

std::vector<fs::path> developmentFiles(const fs::path& corpora, const std::string& language) {
    std::vector<fs::path> files;
    for (const char* name : {"ewt", "gum"})
        files.push_back(corpora / language / (language + "_" + name + "-dev.conllu"));
    return files;
}

void print(const fs::path& file, const Figures& figures) {
    std::printf("%s\n  gold tokens: pos %.2f, names %.2f\n", file.filename().c_str(), figures.posOnGoldTokens,
                figures.namesOnGoldTokens.f1());
    std::printf("  raw text: tokens %.2f, sentences %.2f, pos %.2f, names %.2f\n", figures.tokens.f1(),
                figures.sentences.f1(), figures.pos.f1(), figures.names.f1());
}

int evaluateModel(const fs::path& file, const fs::path& corpora, std::vector<fs::path> texts) {
    const auto model = Model::load(file);
    if (!model.succeeded()) return fail(file.string() + ": " + model.fault().reason);
    const Engine engine(std::make_shared<const ModelStore>(model.value()));
    if (!corpora.empty())
        for (const fs::path& text : developmentFiles(corpora, model.value()->language()))
            texts.push_back(text);
    for (const fs::path& text : texts) {
        const auto gold = readConllu(text);
        if (!gold.succeeded()) return fail(gold.fault());
        print(text, evaluate(model.value(), engine, gold.value()));
    }
    return 0;
}

int run(int count, char** arguments) {
    CLI::App app("Trains Lexiform's language models and measures them");
    app.require_subcommand(1);
    std::vector<std::string> languages;
    std::vector<fs::path> texts;
    fs::path corpora, folder, model;

    CLI::App* train = app.add_subcommand("train-models", "Train the models of languages");
    train->add_option("languages", languages, "Codes such as en")->required();
    train->add_option("--corpora", corpora, "Folder of the unpacked corpora")
        ->required()
        ->check(CLI::ExistingDirectory);
    train->add_option("--out", folder, "Folder to write <code>.lxm to")
        ->required()
        ->check(CLI::ExistingDirectory);

    CLI::App* evaluate = app.add_subcommand("evaluate", "Measure a model on annotated texts");
    evaluate->add_option("--model", model, "Model file")->required();
    evaluate
        ->add_option("--corpora", corpora, "Folder of the unpacked corpora: measure on its development parts")
        ->check(CLI::ExistingDirectory);
    evaluate->add_option("texts", texts, "CoNLL-U files");

    CLI11_PARSE(app, count, arguments);
    if (train->parsed()) return trainModels(languages, corpora, folder);
    return evaluateModel(model, corpora, texts);
}

} // namespace

int main(int count, char** arguments) {
    try {
        return run(count, arguments);
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}
