#pragma once

#include "base/Outcome.h"
#include "tools/train/corpora/Corpus.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace lexiform::train {

/// The sentences of a text of `language`, BCP 47, with a paragraph a line, cut by the rules alone and without
/// annotation: about `most` bytes of it, from everywhere in it. The fault says that it cannot be opened.
[[nodiscard]] Outcome<Corpus, std::string> readText(const std::filesystem::path& file,
                                                    std::string_view language, std::size_t most);

} // namespace lexiform::train
