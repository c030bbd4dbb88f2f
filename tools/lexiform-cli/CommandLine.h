#pragma once

#include "tools/lexiform-cli/ConcordanceCommand.h"
#include "tools/lexiform-cli/TagCommand.h"

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

/// One of the commands with what it was asked for.
using Request = std::variant<TagRequest, ConcordanceRequest>;

/// What a command line asks for. Help and the version, as well as mistakes, are an Exit.
[[nodiscard]] Outcome<Request, Exit> parseCommandLine(int argc, const char* const* argv,
                                                      const std::string& version);

} // namespace lexiform::cli
