#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace lexiform::document {

/// The code page of Western Windows, in which RTF is unless it says otherwise.
inline constexpr std::int32_t westernCodePage = 1252;
/// Stands for fonts of symbols: their bytes are no letters.
inline constexpr std::int32_t symbolCodePage = 42;

/// The code page of a font's charset number; nothing for 1, the default charset, and unknown ones.
[[nodiscard]] std::optional<std::int32_t> codePageOfCharset(std::int32_t charset);

/// The name under which ICU may know a code page.
[[nodiscard]] std::string charsetOfCodePage(std::int32_t codePage);

} // namespace lexiform::document
