#pragma once

#include "tools/lexiform-cli/ConcordanceCommand.h"
#include "tools/lexiform-cli/LanguageCommand.h"
#include "tools/lexiform-cli/TagCommand.h"
#include "tools/lexiform-cli/TextCommand.h"

#include "base/Outcome.h"

#include <string>
#include <variant>

namespace lexiform::cli {

/// A command line that asks for no command: what to say, where, and how to exit.
struct Exit {
    int status = 0;
    std::string message;
};

/// Exit statuses: a file or the output failed; the command line cannot be understood.
inline constexpr int failed = 1;
inline constexpr int misused = 2;

/// What `lexiform-cli models` was asked for: nothing more.
struct ModelsRequest {};

/// One of the commands with what it was asked for.
struct Request {
    std::variant<TagRequest, ConcordanceRequest, LanguageRequest, ModelsRequest, TextRequest> command;
    /// The language that a person says the texts are in, BCP 47; empty where the texts are to tell.
    std::string language;
};

/// What a command line asks for. Help and the version, as well as mistakes, are an Exit.
[[nodiscard]] Outcome<Request, Exit> parseCommandLine(int argc, const char* const* argv,
                                                      const std::string& version);

} // namespace lexiform::cli
