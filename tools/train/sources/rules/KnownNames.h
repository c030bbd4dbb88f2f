#pragma once

#include "tools/train/sources/Recipe.h"

#include <string_view>

namespace lexiform::train {

/// Names as they are written, their words separated by single spaces, one from another by "|".
struct KnownNames {
    std::string_view persons{}, places{}, organizations{};
    std::string_view others{};     ///< proper nouns that are no name of these
    std::string_view givenNames{}; ///< single words, each of them the first of persons' names
    std::string_view titles{};     ///< single words that stand before a person's name, outside it
};

/// Names sentences with the Penn Treebank's tags by what is known: a sequence of proper nouns (NNP, NNPS)
/// must be one of the names, or a title and then such a one, or a given name with what may follow it. Of the
/// sentences with others the names are unknown.
[[nodiscard]] Preparation namedBy(const KnownNames& names);

} // namespace lexiform::train
