#pragma once

#include "tools/lexiform-cli/TagCommand.h"

#include "base/Outcome.h"

#include <string>

namespace lexiform::cli {

/// A command line that asks for no command: what to say, where, and how to exit.
struct Exit {
    int status = 0;
    std::string message;
};

/// Exit statuses: a file or the output failed; the command line cannot be understood.
inline constexpr int failed = 1;
inline constexpr int misused = 2;

/// What a command line asks for. Help and the version, as well as mistakes, are an Exit.
[[nodiscard]] Outcome<TagRequest, Exit> parseCommandLine(int argc, const char* const* argv,
                                                         const std::string& version);

} // namespace lexiform::cli
