#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

namespace lexiform::train {

/// Writes a file as a whole: under another name first, so that what bears the name is never a part. Answers
/// whether it could.
[[nodiscard]] bool writeFile(const std::filesystem::path& file, std::span<const std::byte> bytes);

} // namespace lexiform::train
