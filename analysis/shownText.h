#pragma once

#include "analysis/TaggedText.h"

#include <cstddef>
#include <string_view>

namespace lexiform {

/// What a view shows of the record at a position: its lemma in the view of lemmas, its word in all others.
[[nodiscard]] std::string_view shownText(const TaggedText& records, std::size_t position, int view);

} // namespace lexiform
