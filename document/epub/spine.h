#pragma once

#include "base/Outcome.h"
#include "document/format/ReadFault.h"
#include "document/package/Package.h"

#include <string>
#include <vector>

namespace lexiform::document {

/// The names of the pages of a book in the order in which they are read, each once; pictures in it are left
/// out.
[[nodiscard]] Outcome<std::vector<std::string>, ReadFault> spineOf(Package& package);

} // namespace lexiform::document
