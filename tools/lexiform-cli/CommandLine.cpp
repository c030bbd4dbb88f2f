#include "tools/lexiform-cli/CommandLine.h"

#include "tools/lexiform-cli/TokenWriter.h"

#include <CLI/CLI.hpp>

#include <iterator>
#include <sstream>
#include <vector>

namespace lexiform::cli {

namespace {

constexpr const char* fileHelp = "Texts in UTF-8; - is standard input";

CLI::App* addTag(CLI::App& app, TagRequest& request) {
    CLI::App* const command = app.add_subcommand(
        "tag", "Writes every token of a text with its class; reads standard input when no file is named.");
    command->add_option("--format", request.format, "How to write it: conllu (the default), tsv or ansi")
        ->check(CLI::IsMember(std::vector<std::string>(std::begin(formatNames), std::end(formatNames))));
    command->add_flag("--key", request.withKey, "Adds the colour key after a text in colours (ansi)");
    command->callback([&request] {
        if (request.withKey && request.format != "ansi")
            throw CLI::ValidationError("--key", "goes with --format ansi alone");
    });
    command->add_option("FILE", request.files, fileHelp);
    return command;
}

CLI::App* addConcordance(CLI::App& app, ConcordanceRequest& request) {
    CLI::App* const command = app.add_subcommand(
        "concordance", "Lists the words of each class with their counts; several files are one report.");
    command->add_flag("--lemmas", request.lemmas,
                      "Counts dictionary forms where the model gives them, not words as written");
    command->add_flag("--each", request.each, "Gives each file a report of its own, under its name");
    command->add_option("FILE", request.files, fileHelp);
    return command;
}

Exit exitFor(const CLI::App& app, const CLI::ParseError& error) {
    std::ostringstream message;
    const bool isMistake = app.exit(error, message, message) != 0;
    return {isMistake ? misused : 0, message.str()};
}

} // namespace

Outcome<Request, Exit> parseCommandLine(int argc, const char* const* argv, const std::string& version) {
    CLI::App app("Lexiform on the command line: the lexical classes of a text.", "lexiform-cli");
    app.set_version_flag("--version", "lexiform-cli " + version);
    app.require_subcommand(1);
    TagRequest tag;
    ConcordanceRequest concordance;
    addTag(app, tag);
    const CLI::App* const concordanceCommand = addConcordance(app, concordance);
    try {
        app.parse(argc, argv);
    } catch (const CLI::RequiredError& error) {
        // Of a word that is no command the library says only that there is no command.
        if (argc > 1 && argv[1][0] != '-' && app.get_subcommands().empty())
            return Exit{misused, std::string("There is no command “") + argv[1] +
                                     "”.\nRun with --help for those that are.\n"};
        return exitFor(app, error);
    } catch (const CLI::ParseError& error) {
        return exitFor(app, error);
    }
    if (concordanceCommand->parsed()) return Request(concordance);
    return Request(tag);
}

} // namespace lexiform::cli
