#pragma once

#include "tools/train/corpora/Lines.h"
#include "tools/train/lexicon/LexiconBuilder.h"

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

namespace lexiform::train {

/// Normal forms of words so common that a name of the same form says little.
using CommonWords = std::set<std::string, std::less<>>;

/// Adds the gazetteers of given names, family names, cities and countries in `folder`, a name of several
/// words not at all. With `american`, also the many family names of the United States.
[[nodiscard]] ReadFault addGazetteers(const std::filesystem::path& folder, const CommonWords& common,
                                      bool american, LexiconBuilder& lexicon);

/// Adds the first word of each line of `file` to `list`, at most `most` lines.
[[nodiscard]] ReadFault addNameList(const std::filesystem::path& file, linguistics::WordList list,
                                    std::size_t most, const CommonWords& common, LexiconBuilder& lexicon);

} // namespace lexiform::train
