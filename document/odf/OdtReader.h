#pragma once

#include "base/Outcome.h"
#include "document/format/ReadFault.h"
#include "document/package/Package.h"

#include <string>

namespace lexiform::document {

/// Whether a package is a text document in the OpenDocument format.
[[nodiscard]] bool isOdt(Package& package);

/// The text of an OpenDocument text document (OASIS OpenDocument 1.3, Part 3), as UTF-8: paragraphs, tabs,
/// spaces and line ends as they stand, tabs between the cells of a row; a text box behind its paragraph,
/// notes behind the text. Deleted text, comments, descriptions of pictures, headers and footers are left out.
[[nodiscard]] Outcome<std::string, ReadFault> readOdt(Package& package);

} // namespace lexiform::document
