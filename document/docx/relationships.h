#pragma once

#include "base/Outcome.h"
#include "document/format/ReadFault.h"
#include "document/package/Package.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::document {

/// What a part of an Office Open XML package points to (ECMA-376, Part 2, "Relationships").
struct Relationship {
    std::string kind; ///< the last word of its type: "officeDocument", "footnotes"
    std::string part; ///< the name of the part that it points to
};

/// The relationships of a part, or of the whole package for an empty name; none when it has none.
[[nodiscard]] std::vector<Relationship> relationshipsOf(Package& package, std::string_view part);

/// The first part of a kind that is in the package.
[[nodiscard]] std::optional<std::string> partOfKind(const std::vector<Relationship>& relationships,
                                                    std::string_view kind, const Package& package);

} // namespace lexiform::document
