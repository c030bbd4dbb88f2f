#pragma once

#include "linguistics/Engine.h"

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace lexiform::cli {

/// What `lexiform-cli concordance` was asked for.
struct ConcordanceRequest {
    /// Whether dictionary forms are counted rather than the words as written.
    bool lemmas = false;
    /// Whether each file gets a report of its own, under its name.
    bool each = false;
    /// The type in which the files are taken; empty for the one that each has.
    std::string type{};
    /// Names of files; none stands for standard input.
    std::vector<std::string> files;
};

/// Writes the report of the words of each class, as the concordance pane holds it, to `out`; several
/// files are one report. A file that cannot be taken is told on `errors` and left out. Gives the exit
/// status: 0, or 1 when anything failed. Memory grows with the different words, not with the texts.
[[nodiscard]] int concordance(const ConcordanceRequest& request,
                              const std::shared_ptr<const linguistics::Engine>& engine, std::FILE* out,
                              std::FILE* errors);

} // namespace lexiform::cli
