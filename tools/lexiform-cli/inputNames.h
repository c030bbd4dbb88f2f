#pragma once

#include <string>
#include <vector>

namespace lexiform::cli {

/// Why an input could not be taken, in words for the person who named it.
struct InputFault {
    std::string message;
};

/// The name under which standard input is read and reported.
inline constexpr const char* standardInput = "-";

/// The names of the inputs of a command: standard input when a person named none.
[[nodiscard]] std::vector<std::string> inputNames(const std::vector<std::string>& named);

} // namespace lexiform::cli
