#pragma once

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

/// Where the enclitic particle starts that Indonesian writes onto a word ("rumah|nya", "apa|kah"); the
/// word's length if it has none. Words that only look so ("hanya", "akhirnya") are left whole.
[[nodiscard]] std::size_t startOfParticle(std::string_view word);

} // namespace lexiform::linguistics
