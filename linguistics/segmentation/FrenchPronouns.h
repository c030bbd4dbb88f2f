#pragma once

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

/// Where the pronouns start that French ties to a verb with hyphens ("dit|-elle", "a|-t-il",
/// "donne|-le-moi"), or the -ci and -là of a noun ("jour|-là"): the byte of the first hyphen, or the word's
/// length if there are none. Compounds ("rendez-vous", "celui-là", "vis-à-vis") are left whole. Looks at the
/// last bytes of a long word alone.
[[nodiscard]] std::size_t startOfFrenchPronouns(std::string_view word);

/// Of pronouns that start so, the bytes of the first ("-t-il", "-le|-moi", "-t'|en").
[[nodiscard]] std::size_t lengthOfFrenchPronoun(std::string_view pronouns);

} // namespace lexiform::linguistics
