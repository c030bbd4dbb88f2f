#pragma once

#include "linguistics/Engine.h"

#include <cstdio>
#include <string>
#include <vector>

namespace lexiform::cli {

/// What `lexiform-cli tag` was asked for.
struct TagRequest {
    std::string format = "conllu";
    /// Whether the colour key follows a text in colours.
    bool withKey = false;
    /// Names of files; none stands for standard input.
    std::vector<std::string> files;
};

/// Tags the files in order and writes them to `out`. A file that cannot be taken is reported on
/// `errors` and the others still come. Gives the exit status: 0, or 1 when anything failed.
[[nodiscard]] int tag(const TagRequest& request, const linguistics::Engine& engine, std::FILE* out,
                      std::FILE* errors);

} // namespace lexiform::cli
