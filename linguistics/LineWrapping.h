#pragma once

#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// For each line break of a paragraph, in order: whether it only wraps the line, so that the sentence
/// goes on. Told from whether the next line's first word would still have fitted on the line, from
/// the line's length and from how the next line starts; titles, lists, verse and short lines of
/// dialogue do not wrap.
[[nodiscard]] std::vector<bool> wrappingLineBreaks(std::string_view paragraph);

} // namespace lexiform::linguistics
