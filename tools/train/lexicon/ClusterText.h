#pragma once

#include "tools/train/corpora/Corpus.h"
#include "tools/train/corpora/Lines.h"
#include "tools/train/lexicon/WordClusters.h"

#include <cstddef>
#include <filesystem>

namespace lexiform::train {

/// Adds the words of an annotated corpus.
void addForClusters(const Corpus& corpus, WordClusters& clusters);

/// Adds the words of a running text, a paragraph a line; of a text with more than about `mostTokens`
/// paragraphs spread over all of it. Answers by `added` how many tokens it added.
[[nodiscard]] ReadFault addForClusters(const std::filesystem::path& file, std::size_t mostTokens,
                                       WordClusters& clusters, std::size_t& added);

} // namespace lexiform::train
