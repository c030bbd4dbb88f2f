#pragma once

#include "linguistics/Engine.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

namespace lexiform::cli {

/// What `lexiform-cli language` was asked for.
struct LanguageRequest {
    /// "paragraph" or "sentence".
    std::string by = "paragraph";
    std::size_t jobs = 1;
    /// The type in which the files are taken; empty for the one that each has.
    std::string type{};
    /// Names of files; none stands for standard input.
    std::vector<std::string> files;
};

/// Writes a line for each paragraph or sentence: the code of its language, a tab, and its text with every
/// run of white space as one blank. The code is "und" where the language cannot be told. A file that
/// cannot be taken is told on `errors`. Gives the exit status: 0, or 1 when anything failed.
[[nodiscard]] int tellLanguages(const LanguageRequest& request, const linguistics::Engine& engine,
                                std::FILE* out, std::FILE* errors);

} // namespace lexiform::cli
