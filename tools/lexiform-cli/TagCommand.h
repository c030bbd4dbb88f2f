#pragma once

#include "linguistics/Engine.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

namespace lexiform::cli {

/// What `lexiform-cli tag` was asked for.
struct TagRequest {
    std::string format = "conllu";
    /// Whether the colour key follows a text in colours.
    bool withKey = false;
    /// How many threads analyse and write; the result is the same for any number.
    std::size_t jobs = 1;
    /// The type in which the files are taken; empty for the one that each has.
    std::string type{};
    /// Names of files; none stands for standard input.
    std::vector<std::string> files;
};

/// Tags the files in order and writes them to `out`, in bounded memory however long they are. A file that
/// cannot be taken, wholly or from some place on, is reported on `errors` and the others still come.
/// Gives the exit status: 0, or 1 when anything failed.
[[nodiscard]] int tag(const TagRequest& request, const linguistics::Engine& engine, std::FILE* out,
                      std::FILE* errors);

} // namespace lexiform::cli
