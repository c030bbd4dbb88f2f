#pragma once

#include "base/Outcome.h"
#include "document/format/ReadFault.h"
#include "document/package/Package.h"

#include <string>

namespace lexiform::document {

/// Whether a package is an electronic book.
[[nodiscard]] bool isEpub(Package& package);

/// The text of a book (EPUB 3.3), as UTF-8: the pages of its spine in their order, each as `readHtml` gives
/// it. A page that is missing or no text is left out; a book without any page is damaged.
[[nodiscard]] Outcome<std::string, ReadFault> readEpub(Package& package);

} // namespace lexiform::document
