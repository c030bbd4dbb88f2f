#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// The parts of `line` between `separator`s; one more than there are separators.
[[nodiscard]] std::vector<std::string_view> partsOf(std::string_view line, char separator);

/// Why a file could not be read; nothing where it could.
using ReadFault = std::optional<std::string>;

/// Gives `take` the lines of `file` without their ends, one after the other.
[[nodiscard]] ReadFault eachLine(const std::filesystem::path& file,
                                 const std::function<void(std::string_view)>& take);

/// Reads all of `file` into `text`.
[[nodiscard]] ReadFault readWhole(const std::filesystem::path& file, std::string& text);

} // namespace lexiform::train
