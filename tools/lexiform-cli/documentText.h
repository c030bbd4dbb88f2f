#pragma once

#include "base/Outcome.h"
#include "tools/lexiform-cli/inputNames.h"

#include <string>
#include <string_view>

namespace lexiform::cli {

/// The type of a plain text in UTF-8, which is never guessed at.
inline constexpr const char* plainType = "plain";

/// The names of the types in which a file can be taken whatever its content is.
inline constexpr const char* typeNames[] = {plainType, "rtf", "html", "odt", "docx", "epub"};

/// Whether a file that starts with these bytes is plain text in UTF-8 as far as they go. The last character
/// may be cut unless they are the whole.
[[nodiscard]] bool beginsAsPlainUtf8(std::string_view start, bool isWhole);

/// The characters of a file's bytes, as UTF-8: read as the named type or, when that is empty, as the one
/// that their content has, a plain text in whatever encoding fits. The fault says, for a person, why there
/// are none.
[[nodiscard]] Outcome<std::string, InputFault> documentText(std::string_view bytes, const std::string& type);

} // namespace lexiform::cli
