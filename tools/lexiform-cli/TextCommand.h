#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace lexiform::cli {

/// What `lexiform-cli text` was asked for.
struct TextRequest {
    /// The type in which the files are taken; empty for the one that each has.
    std::string type{};
    /// Names of files; none stands for standard input.
    std::vector<std::string> files;
};

/// Writes the characters of the files, as they enter the input pane of a window, to `out`, in order and
/// with nothing between. A file that cannot be taken, wholly or from some place on, is told on `errors`.
/// Gives the exit status: 0, or 1 when anything failed.
[[nodiscard]] int text(const TextRequest& request, std::FILE* out, std::FILE* errors);

} // namespace lexiform::cli
