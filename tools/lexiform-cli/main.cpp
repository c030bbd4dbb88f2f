#include "linguistics/Engine.h"
#include "platform/linguistics/ModelMessage.h"
#include "platform/linguistics/modelFolders.h"
#include "tools/lexiform-cli/CommandLine.h"
#include "tools/lexiform-cli/ModelsCommand.h"

#include <cstdio>
#include <exception>
#include <memory>
#include <variant>

using namespace lexiform;

namespace {

/// Runs what was asked for.
class Runner {
public:
    Runner(std::shared_ptr<const linguistics::ModelStore> models, const std::string& language)
        : models_(std::move(models)), engine_(std::make_shared<const linguistics::Engine>(
                                          models_, linguistics::EngineOptions{language})) {}

    int operator()(const cli::TagRequest& request) const {
        return cli::tag(request, *engine_, stdout, stderr);
    }
    int operator()(const cli::ConcordanceRequest& request) const {
        return cli::concordance(request, engine_, stdout, stderr);
    }
    int operator()(const cli::LanguageRequest& request) const {
        return cli::tellLanguages(request, *engine_, stdout, stderr);
    }
    int operator()(const cli::TextRequest& request) const { return cli::text(request, stdout, stderr); }
    int operator()(const cli::ModelsRequest& /*request*/) const {
        return cli::listModels(*models_, stdout, stderr);
    }

private:
    std::shared_ptr<const linguistics::ModelStore> models_;
    std::shared_ptr<const linguistics::Engine> engine_;
};

int run(int argc, char** argv) {
    const auto request = cli::parseCommandLine(argc, argv, LEXIFORM_VERSION);
    if (!request.succeeded()) {
        const cli::Exit& exit = request.fault();
        std::fputs(exit.message.c_str(), exit.status == 0 ? stdout : stderr);
        return exit.status;
    }
    const auto models = std::make_shared<const linguistics::ModelStore>(modelFolders());
    // Without its classes the result would look right and be worthless.
    if (const auto english = models->check("en"); !english.succeeded()) {
        std::fprintf(stderr, "lexiform-cli: %s\n", englishModelMessage(english.fault()).c_str());
        return cli::failed;
    }
    return std::visit(Runner(models, request.value().language), request.value().command);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "lexiform-cli: %s\n", error.what());
        return cli::failed;
    }
}
