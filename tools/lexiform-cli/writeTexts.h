#pragma once

#include "linguistics/Engine.h"
#include "tools/lexiform-cli/Sink.h"
#include "tools/lexiform-cli/TokenWriter.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

namespace lexiform::cli {

/// The texts that a command is to take.
struct Inputs {
    std::vector<std::string> files;
    /// The type of all of them; empty for the one that each has.
    std::string type{};
};

/// Analyses the texts of the named files in order, with `jobs` threads, and writes them to `sink` in a
/// format; the result is the same for any number of threads. A file that cannot be taken, wholly or from
/// some place on, is reported on `errors` and the others still come. Gives the exit status: 0, or 1 when
/// a file failed.
[[nodiscard]] int writeTexts(const Inputs& inputs, const TokenFormat& format, std::size_t jobs,
                             const linguistics::Engine& engine, Sink& sink, std::FILE* errors);

} // namespace lexiform::cli
