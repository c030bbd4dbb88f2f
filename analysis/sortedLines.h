#pragma once

#include <string>
#include <vector>

namespace lexiform {

/// The lines in ascending order of their Unicode scalar values after canonical composition; lines that
/// are canonically equivalent follow the order of their own scalars.
[[nodiscard]] std::vector<std::string> sortedLines(std::vector<std::string> lines);

} // namespace lexiform
