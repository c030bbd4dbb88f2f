#pragma once

#include "base/Outcome.h"
#include "document/format/ReadFault.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lexiform::document {

/// Elements nested deeper than this are no honest page: browsers themselves go no deeper than 512.
inline constexpr std::size_t deepestHtmlElement = 1024;

/// Whether `bytes` begin as an HTML page does, in any encoding that a page can be in.
[[nodiscard]] bool isHtml(std::string_view bytes);

/// The text that a page in HTML or XHTML shows, as UTF-8: blocks on lines of their own, tabs between the
/// cells of a row, what is preformatted as it stands. Hidden content, the head with its title, scripts,
/// forms' hidden parts, pictures and readings over ideographs are left out.
///
/// The encoding is that of a byte order mark, of a declaration in the page, or the one that fits. Faults:
/// bytes that are no text, elements nested too deep, a tag with too many attributes. A page that is cut
/// short gives what is there. Takes memory in proportion to the length.
[[nodiscard]] Outcome<std::string, ReadFault> readHtml(std::string_view bytes);

} // namespace lexiform::document
