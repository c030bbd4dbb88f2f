// Trains the language models from annotated corpora, and measures them.

#include "tools/train/commands/evaluateModel.h"
#include "tools/train/commands/languages.h"
#include "tools/train/commands/renewLemmas.h"
#include "tools/train/commands/reportFault.h"
#include "tools/train/commands/segmentation.h"
#include "tools/train/commands/trainModels.h"
#include "tools/train/sources/Sources.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace lexiform::train;
namespace fs = std::filesystem;

int run(int count, char** arguments) {
    CLI::App app("Trains Lexiform's language models and measures them");
    app.require_subcommand(1);
    std::vector<std::string> languages;
    std::vector<fs::path> texts;
    fs::path corpora, folder, model;
    TrainingOptions options;
    std::size_t confusions = 0;
    bool lemmasAlone = false;

    CLI::App* train = app.add_subcommand("train-models", "Train the models of languages");
    train->add_option("languages", languages,
                      "Codes such as en; all that there are corpora for if none is given");
    CLI::Option* force =
        train->add_flag("--force", options.force, "Train the models that are there already, too");
    CLI::Option* teachers =
        train->add_option("--teachers", options.teachers,
                          "How many larger networks teach the tagger; more take longer and help a little");
    train
        ->add_flag("--lemmas", lemmasAlone,
                   "Train the lemmas alone, in models that are there already, and leave all else in them")
        ->excludes(force)
        ->excludes(teachers);
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
    evaluate->add_option("texts", texts, "Annotated texts: CoNLL-U, or lists of names (.tsv)");

    evaluate->add_option("--confusions", confusions,
                         "Show so many of the commonest wrong parts of speech, and of the lemmas");

    CLI::App* segmentation = app.add_subcommand(
        "segmentation", "Train how languages are cut into tokens and sentences, and measure it");
    segmentation->add_option("languages", languages, "Codes such as en; all if none is given");
    segmentation->add_option("--corpora", corpora, "Folder of the unpacked corpora")
        ->required()
        ->check(CLI::ExistingDirectory);
    segmentation->add_option("--out", folder, "Folder for the sections and the errors")
        ->check(CLI::ExistingDirectory);

    CLI::App* trainIdentifier = app.add_subcommand("train-languages", "Train the model that tells languages");
    trainIdentifier->add_option("--corpora", corpora, "Folder of the unpacked corpora")
        ->required()
        ->check(CLI::ExistingDirectory);
    trainIdentifier->add_option("--out", folder, "Folder to write languages.lxi to")
        ->required()
        ->check(CLI::ExistingDirectory);

    CLI::App* evaluateIdentifier =
        app.add_subcommand("evaluate-language", "Measure how often languages are told");
    evaluateIdentifier->add_option("--identifier", model, "languages.lxi")->required();
    evaluateIdentifier
        ->add_option("--corpora", corpora, "Folder of the unpacked corpora: measure on its development parts")
        ->check(CLI::ExistingDirectory);
    evaluateIdentifier->add_option("lists", texts, "Files of lines: code, tab, text");

    CLI11_PARSE(app, count, arguments);
    if (languages.empty()) languages = sourceLanguages();
    if (segmentation->parsed()) return trainAndMeasureSegmentation(languages, corpora, folder);
    if (trainIdentifier->parsed()) return trainLanguages(corpora, folder);
    if (evaluateIdentifier->parsed()) return evaluateLanguages(model, corpora, texts);
    if (train->parsed())
        return lemmasAlone ? renewLemmas(languages, corpora, folder)
                           : trainModels(languages, options, corpora, folder);
    return evaluateModel(model, corpora, texts, confusions);
}

} // namespace

int main(int count, char** arguments) {
    try {
        return run(count, arguments);
    } catch (const std::exception& error) {
        return reportFault(error.what());
    }
}
