#include "tools/lexiform-cli/CommandLine.h"

#include "tools/lexiform-cli/TokenWriter.h"
#include "tools/lexiform-cli/documentText.h"

#include <CLI/CLI.hpp>

#include <iterator>
#include <regex>
#include <sstream>
#include <vector>

namespace lexiform::cli {

namespace {

// Every command reads the same files.
void addFiles(CLI::App& command, std::string& type, std::vector<std::string>& files) {
    command.add_option("--type", type, "What the files are: plain (UTF-8), rtf, html, odt, docx or epub")
        ->check(CLI::IsMember(std::vector<std::string>(std::begin(typeNames), std::end(typeNames))));
    command.add_option("FILE", files, "Texts and documents; - is standard input");
}

constexpr std::size_t mostJobs = 256;

void addJobs(CLI::App& command, std::size_t& jobs) {
    command.add_option("--jobs", jobs, "How many threads work on it; the result is the same")
        ->check(CLI::Range(std::size_t{1}, mostJobs));
}

// A language and what may follow it: script, region, variants.
bool isLanguageCode(const std::string& code) {
    static const std::regex form("[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8})*");
    return std::regex_match(code, form);
}

void addLanguage(CLI::App& command, std::string& language) {
    command
        .add_option("--language", language,
                    "The language of the texts, such as en or de, where they need not tell it themselves")
        ->check([](const std::string& code) {
            return isLanguageCode(code) ? "" : "“" + code + "” is no code of a language such as en or de";
        });
}

CLI::App* addTag(CLI::App& app, TagRequest& request) {
    CLI::App* const command = app.add_subcommand(
        "tag", "Writes every token of a text with its class; reads standard input when no file is named.");
    command
        ->add_option("--format", request.format,
                     "How to write it: conllu (the default), tsv, json, ansi, rtf or html")
        ->check(CLI::IsMember(std::vector<std::string>(std::begin(formatNames), std::end(formatNames))));
    command->add_flag("--key", request.withKey, "Adds the colour key after a text in colours (ansi)");
    command->callback([&request] {
        if (request.withKey && request.format != "ansi")
            throw CLI::ValidationError("--key", "goes with --format ansi alone");
    });
    addJobs(*command, request.jobs);
    addFiles(*command, request.type, request.files);
    return command;
}

CLI::App* addConcordance(CLI::App& app, ConcordanceRequest& request) {
    CLI::App* const command = app.add_subcommand(
        "concordance", "Lists the words of each class with their counts; several files are one report.");
    command->add_flag("--lemmas", request.lemmas,
                      "Counts dictionary forms where the model gives them, not words as written");
    command->add_flag("--each", request.each, "Gives each file a report of its own, under its name");
    addFiles(*command, request.type, request.files);
    return command;
}

CLI::App* addLanguages(CLI::App& app, LanguageRequest& request) {
    CLI::App* const command = app.add_subcommand(
        "language", "Tells the language of each paragraph: a code, a tab and the text, a line each.");
    command->add_option("--by", request.by, "What to tell it of: paragraph (the default) or sentence")
        ->check(CLI::IsMember({"paragraph", "sentence"}));
    addJobs(*command, request.jobs);
    addFiles(*command, request.type, request.files);
    return command;
}

CLI::App* addText(CLI::App& app, TextRequest& request) {
    CLI::App* const command = app.add_subcommand(
        "text", "Writes the characters of texts and documents, as they enter a window's input pane.");
    addFiles(*command, request.type, request.files);
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
    LanguageRequest languages;
    std::string language;
    addLanguage(*addTag(app, tag), language);
    const CLI::App* const concordanceCommand = addConcordance(app, concordance);
    addLanguage(*app.get_subcommand("concordance"), language);
    const CLI::App* const languageCommand = addLanguages(app, languages);
    TextRequest text;
    const CLI::App* const textCommand = addText(app, text);
    const CLI::App* const modelsCommand = app.add_subcommand(
        "models", "Lists the languages that have a model, with its size, licence and figures.");
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
    if (concordanceCommand->parsed()) return Request{concordance, language};
    if (languageCommand->parsed()) return Request{languages, ""};
    if (modelsCommand->parsed()) return Request{ModelsRequest{}, ""};
    if (textCommand->parsed()) return Request{text, ""};
    return Request{tag, language};
}

} // namespace lexiform::cli
