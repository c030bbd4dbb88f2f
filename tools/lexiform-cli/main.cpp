#include "linguistics/Engine.h"
#include "platform/linguistics/LinguisticTagger.h"
#include "platform/linguistics/ModelMessage.h"
#include "platform/linguistics/modelFolders.h"
#include "tools/lexiform-cli/CommandLine.h"

#include <cstdio>
#include <memory>
#include <variant>

using namespace lexiform;

namespace {

int run(const cli::Request& request, const std::shared_ptr<const linguistics::Engine>& engine) {
    if (const auto* tag = std::get_if<cli::TagRequest>(&request))
        return cli::tag(*tag, *engine, stdout, stderr);
    return cli::concordance(std::get<cli::ConcordanceRequest>(request), linguisticTaggers(engine), stdout,
                            stderr);
}

} // namespace

int main(int argc, char** argv) {
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
    return run(request.value(), std::make_shared<const linguistics::Engine>(models));
}
