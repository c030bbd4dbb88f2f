#pragma once

#include "base/Outcome.h"

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

/// The whole text of a file, or of standard input for "-". A file that cannot be read, a folder, and
/// bytes that are not UTF-8 are faults; the last names the offset of the first such byte.
[[nodiscard]] Outcome<std::string, InputFault> readText(const std::string& name);

} // namespace lexiform::cli
