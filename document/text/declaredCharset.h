#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lexiform::document {

/// The encoding that an XML declaration at the start of `bytes` names, in small letters.
[[nodiscard]] std::optional<std::string> xmlCharset(std::string_view bytes);

/// The encoding that a meta element among the first bytes of an HTML page names, in small letters. UTF-16
/// counts as UTF-8: a page in which the name can be read is not in UTF-16.
[[nodiscard]] std::optional<std::string> htmlCharset(std::string_view bytes);

/// The characters of a page or an XML part, as UTF-8: by its byte order mark, else by what it declares,
/// else as a plain text of unknown encoding. Nothing for bytes that are no text.
[[nodiscard]] std::optional<std::string> decodeMarkup(std::string_view bytes);

} // namespace lexiform::document
