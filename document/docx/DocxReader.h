#pragma once

#include "base/Outcome.h"
#include "document/format/ReadFault.h"
#include "document/package/Package.h"

#include <string>

namespace lexiform::document {

/// Whether a package is a word processor's document in Office Open XML.
[[nodiscard]] bool isDocx(Package& package);

/// The text of a WordprocessingML document (ECMA-376, Part 1, transitional or strict), as UTF-8: paragraphs,
/// tabs and breaks as they stand, tabs between the cells of a row; of a field its result; a text box behind
/// its paragraph, notes behind the text. Hidden, deleted and moved-away text, comments, headers and footers
/// are left out.
[[nodiscard]] Outcome<std::string, ReadFault> readDocx(Package& package);

} // namespace lexiform::document
