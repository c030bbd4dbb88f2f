#pragma once

#include <string>
#include <string_view>

namespace lexiform::document {

/// The name of the part of a package to which `target`, written in the part `from`, points: relative to
/// the folder of `from` or, with a slash before it, to the package. Steps out of the package stay in it.
[[nodiscard]] std::string partName(std::string_view from, std::string_view target);

/// An address with its percent escapes as bytes, and without what follows a number sign.
[[nodiscard]] std::string unescapedAddress(std::string_view address);

} // namespace lexiform::document
